#pragma once
// A channel to the user that shows nothing and keeps what would have been
// shown: message boxes in order, and the count of beeps.

#include "hydraulics/user_feedback.h"

#include <string>
#include <vector>

namespace kestrova::calc {

struct RecordedMessage {
    std::string title;
    std::string text;
    MessageIcon icon;
};

class RecordedFeedback : public UserFeedback {
public:
    void beep() override { ++beeps; }
    void showMessage(const std::string& title, const std::string& text, MessageIcon icon) override
    {
        messages.push_back({title, text, icon});
    }

    // The messages as a JSON array of {"title", "text", "icon"}.
    std::string messagesJson() const;

    std::vector<RecordedMessage> messages;
    int beeps = 0;
};

} // namespace kestrova::calc
