// Message boxes, as a question to whoever shows them.
//
// Every message to the administrator goes through ShowMessage, from any room of the house. The
// window layer installs the handler that shows real boxes; tests of windowless code install one
// that records.
#pragma once

#include <functional>
#include <string>

namespace platform {

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Icon { None, Critical, Question, Exclamation, Information };
enum class Answer { Ok, Yes, No, Cancel };

struct Message {
    std::string text; ///< UTF-8; line breaks are CR LF
    std::string caption;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
};

using MessageHandler = std::function<Answer(const Message&)>;

/// Installs the handler and returns the one it replaces.
MessageHandler SetMessageHandler(MessageHandler handler);

/// Shows the box modally and returns the answer. Closing a box that has no Cancel button answers Ok
/// or No. Without a handler the text goes to the standard error stream and the answer is Ok, No or
/// Cancel, so that nothing is agreed to unseen.
Answer ShowMessage(const Message& message);

} // namespace platform
