#pragma once
// Keeps what a correlation would have shown the user.

#include "hydraulics/user_feedback.h"

#include <string>
#include <vector>

struct RecordingFeedback : kestrova::UserFeedback {
    struct Message {
        std::string title, text;
        kestrova::MessageIcon icon;
    };
    void beep() override { ++beeps; }
    void showMessage(const std::string& title, const std::string& text, kestrova::MessageIcon icon) override
    {
        messages.push_back({title, text, icon});
    }
    int beeps = 0;
    std::vector<Message> messages;
};
