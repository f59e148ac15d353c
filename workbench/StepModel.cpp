#include "workbench/StepModel.h"

#include "workbench/Vocabulary.h"

#include "replay/Expectation.h"
#include "replay/Script.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QColor>
#include <QCoreApplication>
#include <QFont>

#include <algorithm>
#include <array>
#include <utility>

namespace workbench {

namespace {

using replay::Json;

constexpr std::array<const char*, StepModel::ColumnCount> kHeaders = {
    QT_TRANSLATE_NOOP("workbench", "No."),    QT_TRANSLATE_NOOP("workbench", "Command"),
    QT_TRANSLATE_NOOP("workbench", "Object"), QT_TRANSLATE_NOOP("workbench", "Arguments"),
    QT_TRANSLATE_NOOP("workbench", "Heard"),  QT_TRANSLATE_NOOP("workbench", "Replayed"),
};

/// Longer ones are for the script, not for a list.
constexpr int kLongestShown = 200;
constexpr int kMostDifferencesShown = 10;

QString written(const Json& json)
{
    return QString::fromStdString(replay::writtenLine(json));
}

QString shortened(const QString& text)
{
    return text.size() <= kLongestShown ? text : text.left(kLongestShown) + QChar(0x2026);
}

QString member(const Json& command, const char* key)
{
    const auto found = command.find(key);
    return found != command.end() && found->is_string() ? QString::fromStdString(found->get<std::string>()) : QString();
}

QString objectOf(const Json& command)
{
    return member(command, member(command, "do") == QLatin1String("new") ? "name" : "on");
}

/// What the other columns do not say; the operation first, as it is called.
QString argumentsOf(const Json& command)
{
    const QString operation = member(command, "op");
    if (!operation.isEmpty())
        return operation + QLatin1Char(' ') + written(command.value("args", Json::array()));
    Json rest = command;
    rest.erase("do");
    if (!objectOf(command).isEmpty())
        rest.erase(member(command, "do") == QLatin1String("new") ? "name" : "on");
    return rest.empty() ? QString() : written(rest);
}

/// The numbers of the events, as they came.
QString eventsOf(const Json& answer)
{
    QStringList numbers;
    const auto events = answer.find("events");
    if (events == answer.end() || !events->is_array())
        return {};
    for (const Json& event : *events)
        numbers << (event.is_array() && !event.empty() ? written(event[0]) : written(event));
    return numbers.join(QLatin1Char(' '));
}

} // namespace

StepModel::StepModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

void StepModel::setRecording(const Recording& recording)
{
    beginResetModel();
    m_recording = recording;
    m_replayed.assign(recording.steps.size(), {});
    m_current = -1;
    endResetModel();
}

const Recording& StepModel::recording() const
{
    return m_recording;
}

void StepModel::append(const std::shared_ptr<RecordedStep>& step)
{
    beginInsertRows({}, rowCount(), rowCount());
    m_recording.steps.push_back(step);
    m_replayed.emplace_back();
    endInsertRows();
}

void StepModel::refreshFrom(int row)
{
    if (row >= 0 && row < rowCount())
        Q_EMIT dataChanged(index(row, 0), index(rowCount() - 1, ColumnCount - 1));
}

void StepModel::setReplayed(int row, const Json& answer)
{
    if (row < 0 || row >= rowCount())
        return;
    Replayed& replayed = m_replayed[static_cast<std::size_t>(row)];
    replayed = {answer, {}};
    const Json& expected = m_recording.steps[static_cast<std::size_t>(row)]->answer;
    if (expected.is_object())
        for (const std::string& difference : replay::differences(expected, answer))
            replayed.differences << QString::fromStdString(difference);
    const int before = std::exchange(m_current, row);
    refreshFrom(before < 0 ? row : std::min(before, row));
}

void StepModel::clearReplay()
{
    m_replayed.assign(m_recording.steps.size(), {});
    m_current = -1;
    refreshFrom(0);
}

int StepModel::currentStep() const
{
    return m_current;
}

int StepModel::differingSteps() const
{
    return static_cast<int>(std::count_if(m_replayed.begin(), m_replayed.end(),
                                          [this](const Replayed& replayed) { return isWrong(replayed); }));
}

bool StepModel::isWrong(const Replayed& replayed) const
{
    return replayed.answer.is_object() && (!replayed.differences.isEmpty() || !replayed.answer.value("ok", true));
}

void StepModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    refreshFrom(0);
}

int StepModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_recording.steps.size());
}

int StepModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant StepModel::data(const QModelIndex& index, int role) const
{
    if (!hasIndex(index.row(), index.column(), index.parent()))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return shortened(text(index.row(), index.column()));
    case Qt::ToolTipRole:
        return toolTip(index.row());
    case Qt::ForegroundRole:
        return colour(index.row(), index.column());
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        return index.row() == m_current ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

QString StepModel::text(int row, int column) const
{
    const auto place = static_cast<std::size_t>(row);
    const RecordedStep& step = *m_recording.steps[place];
    switch (column) {
    case Number:
        return (row == m_current ? QStringLiteral("▶ %1") : QStringLiteral("%1")).arg(row + 1);
    case Command:
        return member(step.command, "do");
    case Object:
        return objectOf(step.command);
    case Arguments:
        return argumentsOf(step.command);
    case Events:
        return eventsOf(step.answer.is_object() ? step.answer : m_replayed[place].answer);
    case Replay:
        return replayText(m_replayed[place], step.answer.is_object());
    }
    return {};
}

QString StepModel::replayText(const Replayed& replayed, bool isCompared) const
{
    if (!replayed.answer.is_object())
        return {};
    if (!replayed.answer.value("ok", true))
        return translated(QT_TRANSLATE_NOOP("workbench", "error: %1")).arg(member(replayed.answer, "error"));
    if (!isCompared)
        return translated(QT_TRANSLATE_NOOP("workbench", "done"));
    if (replayed.differences.isEmpty())
        return translated(QT_TRANSLATE_NOOP("workbench", "same"));
    return translated(QT_TRANSLATE_NOOP("workbench", "differs: %1"))
        .arg(replayed.differences.join(QStringLiteral("; ")));
}

QString StepModel::toolTip(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    const RecordedStep& step = *m_recording.steps[place];
    QStringList lines = {shortened(written(step.command))};
    if (step.answer.is_object())
        lines << shortened(written(step.answer));
    for (const QString& difference : m_replayed[place].differences.mid(0, kMostDifferencesShown))
        lines << shortened(difference);
    return lines.join(QLatin1Char('\n')).toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

/// Wrong answers stand out; the way to where the recording was started stands back.
QVariant StepModel::colour(int row, int column) const
{
    namespace keys = WQ::keys;
    const auto place = static_cast<std::size_t>(row);
    if (isWrong(m_replayed[place]))
        return column == Replay ? WQ::resources::color(keys::kNotice) : QVariant();
    return place < m_recording.preparation ? WQ::resources::color(keys::kUnit) : QVariant();
}

QVariant StepModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return {};
    return translated(kHeaders[static_cast<std::size_t>(section)]);
}

} // namespace workbench
