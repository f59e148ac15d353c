#include "replay/Script.h"

#include "replay/Expectation.h"
#include "replay/Session.h"

#include <QString>

#include <array>
#include <functional>
#include <istream>
#include <ostream>
#include <stdexcept>

namespace replay {

namespace {

constexpr const char* kBlanks = " \t\r\v\f";

// More than any command and any answer has. The JSON library copies and writes what is nested by recursion and looks
// for each key among those before it: a line of brackets alone would use the stack up, one of keys take for ever.
constexpr std::size_t kDeepest = 64;
constexpr int kMostKeys = 1000;

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

/// Why a line is not even looked at; empty for all but absurd ones.
std::string absurdity(const std::string& line)
{
    std::array<int, kDeepest + 1> keys{}; // by depth, of the objects that are open
    std::size_t depth = 0;
    bool isText = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char character = line[i];
        if (isText && character == '\\')
            ++i;
        else if (character == '"')
            isText = !isText;
        else if (isText)
            continue;
        else if (character == '[' || character == '{') {
            if (++depth > kDeepest)
                return "nested deeper than " + std::to_string(kDeepest);
            keys[depth] = 0;
        } else if ((character == ']' || character == '}') && depth > 0)
            --depth;
        else if (character == ':' && ++keys[depth] > kMostKeys)
            return "an object of more than " + std::to_string(kMostKeys) + " keys";
    }
    return {};
}

/// What is wrong may quote bytes of the line that are no UTF-8; an answer is.
Json wrongLine(const std::string& why)
{
    return wrongAnswer("malformed JSON: " + QString::fromStdString(why).toStdString());
}

Json answerOf(Session& session, const std::string& line)
{
    const std::string problem = absurdity(line);
    if (!problem.empty())
        return wrongLine(problem);
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
        Json json = absurdity(line).empty() ? Json::parse(line, nullptr, false) : Json();
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
