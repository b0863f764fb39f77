#include "calc/recorded_feedback.h"

#include "calc/json_result.h"

namespace kestrova::calc {

namespace {
const char* iconName(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Warning: return "warning";
    case MessageIcon::Stop: return "stop";
    case MessageIcon::Information: return "info";
    case MessageIcon::Question: return "question";
    }
    return "info";
}
} // namespace

std::string RecordedFeedback::messagesJson() const
{
    std::string json = "[";
    for (const RecordedMessage& m : messages) {
        if (json.size() > 1)
            json += ", ";
        json += JsonObject().text("title", m.title).text("text", m.text).text("icon", iconName(m.icon)).str();
    }
    return json + "]";
}

} // namespace kestrova::calc
