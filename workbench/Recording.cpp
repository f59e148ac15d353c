#include "workbench/Recording.h"

#include "replay/Script.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace workbench {

namespace {

using Kind = RecordingProblem::Kind;
using replay::Json;

/// Writing takes stack for every level.
constexpr int kMostLevels = 100;

/// Stands between the way to where the recording was started and the steps after that.
constexpr const char* kFromHereOn = "# Recorded from here on.";

constexpr const char* kEndOfFile = "END_OF_RECORDING";

RecordingProblem wrong(Kind kind, int line = 0, const QString& detail = {})
{
    return {kind, {}, line, detail};
}

/// Reads one line; the answer is an object when nothing is wrong with it.
RecordingProblem readLine(const std::string& line, int number, Json& json)
{
    bool isTooDeep = false;
    const auto limitDepth = [&isTooDeep](int depth, Json::parse_event_t, Json&) {
        isTooDeep = isTooDeep || depth > kMostLevels;
        return !isTooDeep;
    };
    try {
        json = Json::parse(line, limitDepth);
    } catch (const Json::exception& malformed) {
        return wrong(Kind::Malformed, number, QString::fromUtf8(malformed.what()));
    }
    return isTooDeep ? wrong(Kind::TooDeep, number) : RecordingProblem();
}

bool isUtf8(const std::string& text)
{
    return QString::fromStdString(text).toStdString() == text;
}

void eraseLineEnd(std::string& line)
{
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
}

bool isText(const Json& object, const char* key)
{
    return object.is_object() && object.contains(key) && object[key].is_string();
}

std::string fileText(const std::string& name, const std::string& text)
{
    return "cat > " + name + " <<'" + kEndOfFile + "'\n" + text + kEndOfFile + "\n";
}

} // namespace

bool Recording::hasAnswers() const
{
    return std::all_of(steps.begin(), steps.end(), [](const auto& step) { return step->answer.is_object(); });
}

std::string scriptText(const Recording& recording)
{
    std::string text;
    const auto addMark = [&](std::size_t place) {
        if (place > 0 && place == recording.preparation)
            text += std::string(kFromHereOn) + '\n';
    };
    for (std::size_t i = 0; i < recording.steps.size(); ++i) {
        addMark(i);
        if (!recording.steps[i]->remark.empty())
            text += recording.steps[i]->remark + '\n';
        text += replay::writtenLine(recording.steps[i]->command) + '\n';
    }
    addMark(recording.steps.size());
    return text;
}

std::string expectationText(const Recording& recording)
{
    std::string text;
    if (!recording.hasAnswers())
        return text;
    for (const auto& step : recording.steps)
        text += replay::writtenLine(step->answer) + '\n';
    return text;
}

std::string testText(const Recording& recording, const std::string& name)
{
    return fileText(name + ".jsonl", scriptText(recording))
        + fileText(name + ".expected.jsonl", expectationText(recording));
}

RecordingProblem readScript(const std::string& text, Recording& recording)
{
    if (!isUtf8(text))
        return wrong(Kind::NotUtf8);
    Recording read;
    std::istringstream lines(text);
    std::string line;
    std::string remark;
    for (int number = 1; std::getline(lines, line); ++number) {
        eraseLineEnd(line);
        if (line == kFromHereOn)
            read.preparation = read.steps.size();
        else if (!line.empty() && line.front() == '#')
            remark += (remark.empty() ? "" : "\n") + line;
        if (!replay::isCommandLine(line))
            continue;
        Json command;
        if (RecordingProblem problem = readLine(line, number, command); !problem.isGood())
            return problem;
        if (!isText(command, "do"))
            return wrong(Kind::NoCommand, number);
        read.steps.push_back(std::make_shared<RecordedStep>(RecordedStep{std::exchange(remark, {}), command, nullptr}));
    }
    recording = std::move(read);
    return {};
}

RecordingProblem readExpectations(const std::string& text, Recording& recording)
{
    if (!isUtf8(text))
        return wrong(Kind::NotUtf8);
    std::vector<Json> answers;
    std::istringstream lines(text);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        eraseLineEnd(line);
        if (!replay::isCommandLine(line))
            continue;
        if (RecordingProblem problem = readLine(line, number, answers.emplace_back()); !problem.isGood())
            return problem;
        if (!answers.back().is_object())
            return wrong(Kind::NoAnswer, number);
    }
    if (answers.size() != recording.steps.size())
        return wrong(Kind::OtherCount, 0, QStringLiteral("%1 / %2").arg(answers.size()).arg(recording.steps.size()));
    for (std::size_t i = 0; i < answers.size(); ++i)
        recording.steps[i]->answer = std::move(answers[i]);
    return {};
}

} // namespace workbench
