#include "calc/calc_protocol.h"

#include "calc/function_calls.h"
#include "calc/json_result.h"
#include "calc/request_args.h"
#include "calc/request_json.h"
#include "numeric/numeric_fault.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <istream>

namespace kestrova::calc {

namespace {

std::string errorAnswer(const std::string& id, const std::string& message)
{
    return JsonObject().raw("id", id).boolean("ok", false).text("error", message).str();
}

std::string faultAnswer(const std::string& id, const std::string& where)
{
    return JsonObject().raw("id", id).boolean("ok", false).text("fault", "numeric").text("at", where).str();
}

// The deepest nesting of brackets outside strings, so that a request nested
// beyond reason is refused before it is parsed.
int nestingDepth(std::string_view line)
{
    int depth = 0, deepest = 0;
    bool inString = false;
    for (size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (inString) {
            if (c == '\\')
                ++i;
            else if (c == '"')
                inString = false;
        } else if (c == '"') {
            inString = true;
        } else if (c == '[' || c == '{') {
            deepest = std::max(deepest, ++depth);
        } else if (c == ']' || c == '}') {
            --depth;
        }
    }
    return deepest;
}

std::string dispatch(const nlohmann::json& request, const std::string& id)
{
    if (!request.is_object())
        throw RequestError("a request must be a JSON object");
    const auto call = request.find("call");
    if (call == request.end() || !call->is_string())
        throw RequestError("missing \"call\"");
    const auto& calls = functionCalls();
    const auto handler = calls.find(call->get<std::string>());
    if (handler == calls.end())
        throw RequestError("unknown call '" + call->get<std::string>() + "'");

    static const nlohmann::json noArgs = nlohmann::json::object();
    const auto args = request.find("args");
    if (args != request.end() && !args->is_object())
        throw RequestError("\"args\" must be a JSON object");
    const nlohmann::json& given = args == request.end() ? noArgs : *args;
    for (const std::string& name : handler->second.arguments)
        if (!given.contains(name))
            throw RequestError("missing argument '" + name + "'");
    JsonObject result;
    handler->second.run(RequestArgs(given), result);
    return JsonObject().raw("id", id).boolean("ok", true).raw("result", result.str()).str();
}

} // namespace

std::string answerRequest(std::string_view line)
{
    if (line.size() > kMaxRequestBytes)
        return tooLongAnswer();
    if (nestingDepth(line) > kMaxRequestDepth)
        return errorAnswer("null", "the request nests arrays and objects deeper than " +
                                       std::to_string(kMaxRequestDepth) + " levels");
    nlohmann::json request;
    try {
        request = parseRequestJson(line);
    } catch (const nlohmann::json::exception& error) {
        return errorAnswer("null", std::string("the line is not valid JSON: ") + error.what());
    }
    std::string id = "null";
    if (request.is_object() && request.contains("id"))
        id = request["id"].dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    try {
        return dispatch(request, id);
    } catch (const NumericFault& fault) {
        return faultAnswer(id, fault.where());
    } catch (const RequestError& error) {
        return errorAnswer(id, error.what());
    } catch (const std::exception& error) {
        return errorAnswer(id, std::string("the request could not be answered: ") + error.what());
    }
}

std::string tooLongAnswer()
{
    return errorAnswer("null", "the line is longer than " + std::to_string(kMaxRequestBytes) + " bytes and was not read");
}

bool readRequestLine(std::istream& in, std::string& line, bool& tooLong)
{
    line.clear();
    tooLong = false;
    std::streambuf* source = in.rdbuf();
    int c = source->sbumpc();
    if (c == std::char_traits<char>::eof()) {
        in.setstate(std::ios::eofbit);
        return false;
    }
    for (; c != std::char_traits<char>::eof() && c != '\n'; c = source->sbumpc()) {
        if (line.size() < kMaxRequestBytes)
            line.push_back(static_cast<char>(c));
        else
            tooLong = true;
    }
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return true;
}

} // namespace kestrova::calc
