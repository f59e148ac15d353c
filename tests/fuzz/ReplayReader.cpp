// Scripts of the replay driver, carried out against real tables and dialogs.
#include "fuzz/FuzzTarget.h"
#include "replay/Script.h"
#include "replay/Session.h"
#include "replay/State.h"

#include <QSet>
#include <QWidget>

#include <algorithm>
#include <map>
#include <sstream>
#include <vector>

namespace {

using replay::Json;

constexpr int kMostCommands = 40;    ///< what a script asks for it gets, also an object a line
constexpr int kLargestExtent = 4096; ///< a widget may be as large as its picture fits into the memory

bool isLarge(const nlohmann::json& size)
{
    return std::any_of(size.begin(), size.end(), [](const nlohmann::json& extent) {
        return extent.is_number() && extent.get<double>() > kLargestExtent;
    });
}

/// What a script may ask for and a fuzzer may not: to write files, to wait for the clock, to fill the memory.
bool isLeftOut(const std::string& line)
{
    const auto command = nlohmann::json::parse(line, nullptr, false);
    if (!command.is_object() || !command.contains("do"))
        return false;
    const auto& what = command["do"];
    return what == "screenshot" || what == "clock"
        || (what == "resize" && command.contains("size") && isLarge(command["size"]));
}

/// The script without what is left out; the clock stands.
std::string harmless(const std::string& input)
{
    std::string script = "{\"do\":\"clock\",\"epoch\":1716168600}\n";
    std::istringstream lines(input);
    int commands = 0;
    for (std::string line; std::getline(lines, line);) {
        const bool isCommand = replay::isCommandLine(line);
        const bool isObject = isCommand && line.find('{') != std::string::npos;
        if (isCommand && (isLeftOut(line) || (isObject && ++commands > kMostCommands)))
            continue;
        script += line + '\n';
    }
    return script;
}

void checkAnswer(const Json& answer, int number)
{
    std::vector<std::string> keys;
    for (const auto& [key, value] : answer.items())
        keys.push_back(key);
    const bool isOk = answer.at("ok").get<bool>();
    std::vector<std::string> expected{"line", "ok", "result", "events", "saves", "reloads"};
    if (!isOk)
        expected.insert(expected.begin() + 3, "error");
    fuzz::require(keys == expected, "an answer has its keys, in order");
    fuzz::require(answer["line"] == number, "an answer names its line");
    fuzz::require(isOk || !answer["error"].get<std::string>().empty(), "what is wrong is said");
    fuzz::require(answer["events"].is_array(), "events are a list");
    fuzz::require(Json::parse(replay::writtenLine(answer)).is_object(), "an answer is JSON on one line");
}

/// The states of the objects that a script has made so far.
class Witness
{
public:
    explicit Witness(const replay::Session& session)
        : m_session(session)
    {
    }

    void learn(const std::string& line)
    {
        const Json command = Json::parse(line, nullptr, false);
        if (command.is_object() && command.value("do", Json()) == "new")
            m_names.insert(QString::fromStdString(command["name"].get<std::string>()));
    }

    std::map<QString, Json> look() const
    {
        std::map<QString, Json> states;
        for (const QString& name : m_names)
            if (const QWidget* object = m_session.object(name))
                states[name] = replay::stateOf(object);
        return states;
    }

private:
    const replay::Session& m_session;
    QSet<QString> m_names;
};

std::vector<Json> answersTo(const std::vector<std::string>& lines)
{
    replay::Session session;
    std::vector<Json> answers;
    for (const std::string& line : lines) {
        answers.push_back(replay::answerLine(session, int(answers.size()), line));
        checkAnswer(answers.back(), int(answers.size()) - 1);
    }
    return answers;
}

/// The script once more. Looking at every object takes longer than most commands: only the wrong ones, known from the
/// first time, are watched.
void checkAgain(const std::vector<std::string>& lines, const std::vector<Json>& answers)
{
    replay::Session session;
    Witness witness(session);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool isOk = answers[i]["ok"].get<bool>();
        const auto before = isOk ? std::map<QString, Json>() : witness.look();
        fuzz::require(replay::answerLine(session, int(i), lines[i]) == answers[i], "a script answers the same twice");
        if (isOk)
            witness.learn(lines[i]);
        else
            fuzz::require(witness.look() == before, "a wrong command changes nothing");
    }
}

void check(const std::string& script)
{
    std::vector<std::string> lines;
    std::istringstream stream(script);
    for (std::string line; std::getline(stream, line);)
        if (replay::isCommandLine(line))
            lines.push_back(line);
    checkAgain(lines, answersTo(lines));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::startApplication();
    const std::string script = harmless({reinterpret_cast<const char*>(data), size});
    if (size <= fuzz::kLongestChecked) {
        check(script);
        return 0;
    }
    replay::Session session;
    std::istringstream lines(script);
    std::ostream nowhere(nullptr);
    replay::runScript(session, lines, nowhere);
    return 0;
}
