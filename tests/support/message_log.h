// Message boxes of windowless code, recorded instead of shown.
#pragma once

#include "platform/message.h"

#include <utility>
#include <vector>

namespace test {

/// Records every box while it lives and answers all of them alike.
class MessageLog {
public:
    explicit MessageLog(platform::Answer answer = platform::Answer::Ok)
        : old_(platform::SetMessageHandler([this, answer](const platform::Message& message) {
              messages_.push_back(message);
              return answer;
          })) {}
    ~MessageLog() { platform::SetMessageHandler(std::move(old_)); }
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    [[nodiscard]] const std::vector<platform::Message>& Messages() const { return messages_; }

private:
    std::vector<platform::Message> messages_;
    platform::MessageHandler old_;
};

} // namespace test
