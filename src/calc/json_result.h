#pragma once
// The text of a response object, written field by field in order. Singles
// print with 9 significant digits and doubles with 17, so both round-trip.

#include <string>
#include <string_view>

namespace kestrova::calc {

class JsonObject {
public:
    JsonObject& single(std::string_view key, double value);
    JsonObject& real(std::string_view key, double value);
    JsonObject& integer(std::string_view key, long long value);
    JsonObject& text(std::string_view key, std::string_view value);
    JsonObject& boolean(std::string_view key, bool value);
    JsonObject& null(std::string_view key);
    // A value that is already JSON text (an array, an object, an echoed id).
    JsonObject& raw(std::string_view key, std::string_view json);

    std::string str() const { return body_.empty() ? "{}" : "{" + body_ + "}"; }

private:
    void key(std::string_view name);
    std::string body_;
};

std::string quoted(std::string_view text);
void appendQuoted(std::string& json, std::string_view text);
std::string singleText(double value);
std::string realText(double value);

} // namespace kestrova::calc
