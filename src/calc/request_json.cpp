#include "calc/request_json.h"

#include <simdjson.h>

#include <cstdint>
#include <string>

namespace kestrova::calc {

namespace {

using nlohmann::json;
namespace dom = simdjson::dom;

// A whole -0 is a signed zero to nlohmann and the same as 0 to simdjson: a
// line that may hold one (the text "-0" not followed by a digit, a point or
// an exponent) goes to nlohmann.
bool mayHoldWholeMinusZero(std::string_view line)
{
    for (size_t at = line.find("-0"); at != std::string_view::npos; at = line.find("-0", at + 2)) {
        const char next = at + 2 < line.size() ? line[at + 2] : ' ';
        if (next != '.' && next != 'e' && next != 'E' && (next < '0' || next > '9'))
            return true;
    }
    return false;
}

// The value of an element as nlohmann's parser builds it.
json converted(dom::element element)
{
    switch (element.type()) {
    case dom::element_type::ARRAY: {
        const dom::array items = element;
        json array = json::array();
        for (const dom::element item : items)
            array.push_back(converted(item));
        return array;
    }
    case dom::element_type::OBJECT: {
        const dom::object fields = element;
        json object = json::object();
        for (const dom::key_value_pair field : fields)
            object[std::string(field.key)] = converted(field.value); // a later equal key replaces the earlier
        return object;
    }
    case dom::element_type::INT64: {
        // nlohmann keeps a whole number from 0 up as unsigned.
        const std::int64_t number = element;
        return number >= 0 ? json(static_cast<std::uint64_t>(number)) : json(number);
    }
    case dom::element_type::UINT64:
        return json(static_cast<std::uint64_t>(element));
    case dom::element_type::DOUBLE:
        return json(static_cast<double>(element));
    case dom::element_type::STRING:
        return json(std::string(static_cast<std::string_view>(element)));
    case dom::element_type::BOOL:
        return json(static_cast<bool>(element));
    case dom::element_type::NULL_VALUE:
        break;
    }
    return json(nullptr);
}

} // namespace

json parseRequestJson(std::string_view line)
{
    thread_local dom::parser parser;
    dom::element root;
    if (!mayHoldWholeMinusZero(line) && parser.parse(line.data(), line.size(), true).get(root) == simdjson::SUCCESS)
        return converted(root);
    return json::parse(line);
}

} // namespace kestrova::calc
