#include "platform/message.h"

#include <iostream>
#include <utility>

namespace platform {

namespace {

Answer Unseen(const Message& message) {
    std::cerr << message.caption << ": " << message.text << '\n';
    switch (message.buttons) {
    case Buttons::YesNo:
        return Answer::No;
    case Buttons::YesNoCancel:
        return Answer::Cancel;
    case Buttons::Ok:
        break;
    }
    return Answer::Ok;
}

MessageHandler& Handler() {
    static MessageHandler handler = Unseen;
    return handler;
}

} // namespace

MessageHandler SetMessageHandler(MessageHandler handler) {
    return std::exchange(Handler(), handler ? std::move(handler) : Unseen);
}

Answer ShowMessage(const Message& message) {
    return Handler()(message);
}

} // namespace platform
