// What stands between the program and a server when the two are to misunderstand each other.
#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>

namespace lab {

/// A process that listens on a port of the loopback and ends with this object.
class StandIn {
public:
    ~StandIn();
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;

    /// Takes connections and never answers.
    static StandIn Silent();

    /// Ends a connection as soon as it has taken it.
    static StandIn HangingUp();

    /// Answers every request with these bytes.
    static StandIn Answering(const std::string& bytes);

    /// Passes everything on to the server on `port`, and ends the connection when the server has
    /// sent this much.
    static StandIn CuttingOff(int port, std::size_t bytes);

    /// The same, but from then on passes nothing on and keeps the connection.
    static StandIn FallingSilent(int port, std::size_t bytes);

    [[nodiscard]] int Port() const { return port_; }

private:
    template <class Serve> explicit StandIn(Serve serve);

    pid_t process_ = -1;
    int port_ = 0;
};

} // namespace lab
