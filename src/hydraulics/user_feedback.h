#pragma once
// What a calculation shows the user besides its results: a system beep or a
// message box. The correlations stay free of any window; the calling tool
// hands them its own channel to the user.

#include <string>

namespace kestrova {

enum class MessageIcon { Warning, Stop, Information, Question };

class UserFeedback {
public:
    virtual ~UserFeedback() = default;
    virtual void beep() = 0;
    virtual void showMessage(const std::string& title, const std::string& text, MessageIcon icon) = 0;
};

} // namespace kestrova
