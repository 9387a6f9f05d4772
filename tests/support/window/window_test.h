// Everything a window test needs.
//
// The binary's main (window_main.cpp) starts the toolkit and runs the tests inside an event loop of
// their own. A test builds a real window, acts on it and waits for what must follow:
//
//     TEST(ServersPage, SaveAddsThePair) {
//         HostFrame frame;                                    // shown and active
//         auto* page = new ServersPage(&frame.Frame());
//         frame.Show(page);
//         auto* from = Find<wxTextCtrl>(page, "txtFromServer"); // throws when missing
//         ClickOn(from);                                      // real input events
//         Type("OLD1");
//         ModalScript dialogs;                                // answers modal dialogs, in order
//         dialogs.ExpectMessage({.text = "...", .caption = "Delete?",
//                                .buttons = platform::Buttons::YesNo,
//                                .icon = platform::Icon::Question}, platform::Answer::Yes);
//         ClickOn(Find(page, "cmdDeleteServer"));
//         WaitFor([&] { return dialogs.Done(); }, "the question to be asked");
//     }
//
// A modal dialog that no script expects, an expectation that is not met by the end of its script,
// an assertion of the toolkit and an exception that reaches the event loop fail the test. Nothing
// here waits for a time: WaitFor polls a condition and fails after a limit that no sound run meets.
#pragma once

#include "tests/support/window/find.h"
#include "tests/support/window/host_frame.h"
#include "tests/support/window/input.h"
#include "tests/support/window/modal_script.h"
#include "tests/support/window/screenshot.h"
#include "tests/support/window/wait.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
