#pragma once

#include "replay/Json.h"

#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace workbench {

/// One command of a recording, as scripts write it, with what was answered when it was recorded.
struct RecordedStep
{
    std::string remark;   ///< lines that begin with "#" and stand before it; empty for none
    replay::Json command; ///< {"do": ...}
    replay::Json answer;  ///< {"ok", "result", "events"}; null when it is not known
};

/// What a person and the host did, command by command. Copies share their steps: a step that is still under way gets
/// its answer in all of them.
struct Recording
{
    std::vector<std::shared_ptr<RecordedStep>> steps;
    std::size_t preparation = 0; ///< how many of them lead to where the recording was started

    bool isEmpty() const
    {
        return steps.empty();
    }

    /// Whether each step's answer is known, so that a replay can be compared with it.
    bool hasAnswers() const;
};

/// The commands, one a line, as orderparam-replay reads them.
std::string scriptText(const Recording& recording);

/// The answers, one a line, as orderparam-replay compares them; empty when one of them is not known.
std::string expectationText(const Recording& recording);

/// The recording as a test: a shell text that writes the script and its expectations under @p name, so that pasting it
/// into a terminal in the folder of the recordings adds one. Two files and no program text, since a script beside its
/// expectations is a test already, which runs through the same program that everybody else replays it with.
std::string testText(const Recording& recording, const std::string& name);

/// Why a recording was not read or written.
struct RecordingProblem
{
    enum class Kind { None, CannotRead, CannotWrite, NotUtf8, Malformed, TooDeep, NoCommand, NoAnswer, OtherCount };

    Kind kind = Kind::None;
    QString path;   ///< empty for a text
    int line = 0;   ///< from 1 on; 0 for the whole
    QString detail; ///< what the reader says, not translated

    bool isGood() const
    {
        return kind == Kind::None;
    }
};

/// The problem in the language of the program: "FILE, line 7: what is wrong"; empty for none.
QString problemText(const RecordingProblem& problem);

/// Reads a script into @p recording, whole or not at all. What is read need not be a recording: any script will do.
RecordingProblem readScript(const std::string& text, Recording& recording);

/// Gives the steps of @p recording their answers, all or none of them.
RecordingProblem readExpectations(const std::string& text, Recording& recording);

/// Where the expectations of a script stand: beside it, as NAME.expected.jsonl.
QString expectationPath(const QString& scriptPath);

/// Writes the script and, when all answers are known, the expectations beside it. Each file is written whole or stays
/// as it was.
RecordingProblem saveRecording(const Recording& recording, const QString& path);

/// Reads the script and the expectations beside it, when there are some. After a problem @p recording is as it was.
RecordingProblem loadRecording(const QString& path, Recording& recording);

} // namespace workbench
