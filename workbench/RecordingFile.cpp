#include "workbench/Recording.h"
#include "workbench/Vocabulary.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <array>
#include <optional>

namespace workbench {

namespace {

using Kind = RecordingProblem::Kind;

const QString kSuffix = QStringLiteral(".jsonl");

struct ProblemRow
{
    Kind kind;
    const char* text;
};

// clang-format off
constexpr std::array kProblems = {
    ProblemRow{Kind::CannotRead,  QT_TRANSLATE_NOOP("workbench", "cannot be read")},
    ProblemRow{Kind::CannotWrite, QT_TRANSLATE_NOOP("workbench", "cannot be written")},
    ProblemRow{Kind::NotUtf8,     QT_TRANSLATE_NOOP("workbench", "is no UTF-8 text")},
    ProblemRow{Kind::Malformed,   QT_TRANSLATE_NOOP("workbench", "is no JSON")},
    ProblemRow{Kind::TooDeep,     QT_TRANSLATE_NOOP("workbench", "nests too deep")},
    ProblemRow{Kind::NoCommand,   QT_TRANSLATE_NOOP("workbench", "is no command: an object with \"do\" is expected")},
    ProblemRow{Kind::NoAnswer,    QT_TRANSLATE_NOOP("workbench", "is no answer: an object is expected")},
    ProblemRow{Kind::OtherCount,  QT_TRANSLATE_NOOP("workbench", "answers and commands differ in number")},
};
// clang-format on

RecordingProblem of(const QString& path, RecordingProblem problem)
{
    problem.path = path;
    return problem;
}

RecordingProblem readWhole(const QString& path, std::string& text)
{
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly))
        return {Kind::CannotRead, path, 0, file.errorString()};
    text = file.readAll().toStdString();
    return file.error() == QFile::NoError ? RecordingProblem() : RecordingProblem{Kind::CannotRead, path, 0, {}};
}

RecordingProblem writeWhole(const QString& path, const std::string& text)
{
    QSaveFile file(path);
    const auto size = static_cast<qint64>(text.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), size) != size || !file.commit())
        return {Kind::CannotWrite, path, 0, file.errorString()};
    return {};
}

} // namespace

QString problemText(const RecordingProblem& problem)
{
    const auto* const row = std::find_if(kProblems.begin(), kProblems.end(),
                                         [&problem](const ProblemRow& r) { return r.kind == problem.kind; });
    if (row == kProblems.end())
        return {};
    QString text = translated(row->text);
    if (problem.line > 0)
        text = translated(QT_TRANSLATE_NOOP("workbench", "line %1: %2")).arg(QString::number(problem.line), text);
    if (!problem.path.isEmpty())
        text = QStringLiteral("%1: %2").arg(problem.path, text);
    return problem.detail.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, problem.detail);
}

QString expectationPath(const QString& scriptPath)
{
    const bool hasSuffix = scriptPath.endsWith(kSuffix);
    return scriptPath.left(scriptPath.size() - (hasSuffix ? kSuffix.size() : 0)) + QStringLiteral(".expected.jsonl");
}

RecordingProblem saveRecording(const Recording& recording, const QString& path)
{
    const RecordingProblem problem = writeWhole(path, scriptText(recording));
    if (!problem.isGood())
        return problem;
    if (recording.hasAnswers())
        return writeWhole(expectationPath(path), expectationText(recording));
    QFile::remove(expectationPath(path)); // of the script that stood there before
    return {};
}

RecordingProblem loadRecording(const QString& path, Recording& recording)
{
    std::string text;
    if (RecordingProblem problem = readWhole(path, text); !problem.isGood())
        return problem;
    Recording read;
    if (RecordingProblem problem = readScript(text, read); !problem.isGood())
        return of(path, problem);
    const QString beside = expectationPath(path);
    if (QFileInfo::exists(beside)) {
        if (RecordingProblem problem = readWhole(beside, text); !problem.isGood())
            return problem;
        if (RecordingProblem problem = readExpectations(text, read); !problem.isGood())
            return of(beside, problem);
    }
    recording = std::move(read);
    return {};
}

} // namespace workbench
