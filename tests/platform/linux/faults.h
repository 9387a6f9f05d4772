// Faults of the system at a chosen moment.
//
// This binary's own open, write, fsync, rename and their like stand before the C library's. As long
// as no fault is planned they only pass the call on.
#pragma once

#include <functional>

namespace test {

enum class Fault {
    Fails,       ///< the call returns an error and does nothing
    KillsBefore, ///< the process dies before the call
    KillsAfter,  ///< the process dies when the call is done
    Halves,      ///< a call that moves bytes moves half of them
};

/// Plans one fault at the `step`th call (from 1) that changes files, counted from now on: creating,
/// writing, copying, flushing, changing rights or times, renaming, deleting, closing.
class PlannedFault {
public:
    PlannedFault(Fault fault, int step, int error = 0);
    /// Nothing fails any more.
    ~PlannedFault();
    PlannedFault(const PlannedFault&) = delete;
    PlannedFault& operator=(const PlannedFault&) = delete;

    /// Whether it came to that step.
    [[nodiscard]] bool Happened() const;
    /// Whether the step was the deletion of a file.
    [[nodiscard]] bool HitADeletion() const;
};

/// Runs `act` again and again in a process of its own, which dies before (and then after) its first
/// step, its second and so on, and calls `look` after each death. Ends with the first run that
/// survives; returns the number of deaths.
int KillAtEveryStep(const std::function<void()>& act, const std::function<void()>& look);

} // namespace test
