#include "replay/Script.h"

#include "replay/Expectation.h"
#include "replay/Session.h"

#include <functional>
#include <istream>
#include <ostream>
#include <stdexcept>

namespace replay {

namespace {

constexpr const char* kBlanks = " \t\r\v\f";

/// What becomes of a line: its number and text.
using LineVisitor = std::function<void(int number, const std::string& line)>;

void visitCommandLines(std::istream& stream, const LineVisitor& visit)
{
    std::string line;
    for (int number = 1; std::getline(stream, line); ++number) {
        if (isCommandLine(line))
            visit(number, line);
    }
}

Json wrongLine(const std::string& why)
{
    return {{"ok", false}, {"result", nullptr}, {"error", "malformed JSON: " + why}, {"events", Json::array()},
            {"saves", 0},  {"reloads", 0}};
}

Json answerOf(Session& session, const std::string& line)
{
    try {
        return session.run(Json::parse(line));
    } catch (const Json::exception& malformed) {
        return wrongLine(malformed.what());
    }
}

Json nextExpectation(std::istream& expected)
{
    std::string line;
    while (std::getline(expected, line)) {
        if (!isCommandLine(line))
            continue;
        Json json = Json::parse(line, nullptr, false);
        if (!json.is_object())
            throw std::runtime_error("an expectation is an object on one line: " + line);
        return json;
    }
    return nullptr;
}

} // namespace

bool isCommandLine(const std::string& line)
{
    return line.find_first_not_of(kBlanks) != std::string::npos && line.front() != '#';
}

Json answerLine(Session& session, int number, const std::string& line)
{
    const Json answer = answerOf(session, line);
    Json numbered = {{"line", number}};
    numbered.update(answer);
    return numbered;
}

// The JSON library writes "e+308".
std::string writtenLine(const Json& json)
{
    const std::string dumped = json.dump(-1, ' ', false, Json::error_handler_t::replace);
    std::string line;
    line.reserve(dumped.size());
    bool isText = false;
    for (std::size_t i = 0; i < dumped.size(); ++i) {
        if (isText && dumped[i] == '\\')
            line += dumped[i++];
        else if (dumped[i] == '"')
            isText = !isText;
        else if (!isText && dumped[i] == '+')
            continue;
        line += dumped[i];
    }
    return line;
}

bool runScript(Session& session, std::istream& script, std::ostream& answers)
{
    bool isOk = true;
    visitCommandLines(script, [&](int number, const std::string& line) {
        const Json answer = answerLine(session, number, line);
        isOk = isOk && answer["ok"].get<bool>();
        answers << writtenLine(answer) << '\n' << std::flush;
    });
    return isOk;
}

bool compareScript(Session& session, std::istream& script, std::istream& expected, std::ostream& report)
{
    bool isSame = true;
    const auto note = [&](const std::string& difference) {
        isSame = false;
        report << difference << '\n';
    };
    visitCommandLines(script, [&](int number, const std::string& line) {
        const Json answer = answerLine(session, number, line);
        const Json expectation = nextExpectation(expected);
        if (expectation.is_null()) {
            note("line " + std::to_string(number) + ": nothing is expected of this command");
            return;
        }
        for (const std::string& difference : differences(expectation, answer))
            note("line " + std::to_string(number) + ": " + difference);
    });
    if (!nextExpectation(expected).is_null())
        note("more answers are expected than there are commands");
    return isSame;
}

} // namespace replay
