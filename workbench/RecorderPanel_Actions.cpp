#include "workbench/RecorderPanel.h"

#include "workbench/LanguageTexts.h"
#include "workbench/Playback.h"
#include "workbench/Recorder.h"
#include "workbench/StepModel.h"
#include "workbench/Vocabulary.h"

#include <QAction>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace workbench {

namespace {

/// What an action needs to make sense.
enum Need {
    NoRecording = 0x1, ///< no recording is under way
    NoReplay = 0x2,    ///< no replay is under way
    NoAnswer = 0x4,    ///< no answer of a replay is awaited
    Steps = 0x8,
    Answers = 0x10,  ///< the answer of each step is known
    Activity = 0x20, ///< a recording is under way, or a replay has left its marks
};

enum Place { Record, Stop, Step, Replay, Save, Load, CopyScript, CopyTest };

struct ActionRow
{
    Place place;
    const char* text;
    const char* toolTip;
    int key;
    int needs;
};

// clang-format off
constexpr std::array kActions = {
    ActionRow{Record, QT_TRANSLATE_NOOP("workbench", "Record"),
              QT_TRANSLATE_NOOP("workbench", "Record from here on; the way to the present situation comes first"),
              int(Qt::CTRL) + Qt::Key_R, NoRecording | NoReplay},
    ActionRow{Stop, QT_TRANSLATE_NOOP("workbench", "Stop"),
              QT_TRANSLATE_NOOP("workbench", "End the recording or the replay"),
              int(Qt::CTRL) + Qt::Key_Period, Activity},
    ActionRow{Step, QT_TRANSLATE_NOOP("workbench", "Step"),
              QT_TRANSLATE_NOOP("workbench", "Replay the next step, beside the live panels"),
              Qt::Key_F10, NoRecording | NoAnswer | Steps},
    ActionRow{Replay, QT_TRANSLATE_NOOP("workbench", "Replay"),
              QT_TRANSLATE_NOOP("workbench", "Replay all steps that are left, beside the live panels"),
              Qt::Key_F9, NoRecording | NoAnswer | Steps},
    ActionRow{Save, QT_TRANSLATE_NOOP("workbench", "Save…"),
              QT_TRANSLATE_NOOP("workbench", "Save the script, and what was heard beside it"),
              int(Qt::CTRL) + Qt::Key_S, NoRecording | Steps},
    ActionRow{Load, QT_TRANSLATE_NOOP("workbench", "Load…"),
              QT_TRANSLATE_NOOP("workbench", "Load a script, with what is expected when that stands beside it"),
              int(Qt::CTRL) + Qt::Key_O, NoRecording},
    ActionRow{CopyScript, QT_TRANSLATE_NOOP("workbench", "Copy as replay script"),
              QT_TRANSLATE_NOOP("workbench", "Copy the commands for orderparam-replay"),
              int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_R, NoRecording | Steps},
    ActionRow{CopyTest, QT_TRANSLATE_NOOP("workbench", "Copy as test"),
              QT_TRANSLATE_NOOP("workbench", "Copy what writes the script and its expectations into the current folder"),
              int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_T, NoRecording | Steps | Answers},
};
// clang-format on

constexpr bool rowsStandInTheirPlaces()
{
    for (std::size_t i = 0; i < kActions.size(); ++i)
        if (kActions[i].place != static_cast<Place>(i))
            return false;
    return true;
}
static_assert(rowsStandInTheirPlaces());

QString toolTipOf(const ActionRow& row)
{
    const QString keys = QKeySequence(row.key).toString(QKeySequence::NativeText);
    return QStringLiteral("%1 (%2)").arg(translated(row.toolTip), keys);
}

} // namespace

void RecorderPanel::createBar(QHBoxLayout* bar)
{
    using Handler = void (RecorderPanel::*)();
    static constexpr std::array<Handler, kActions.size()> kHandlers = {
        &RecorderPanel::record,     &RecorderPanel::stop,       &RecorderPanel::step,       &RecorderPanel::replay,
        &RecorderPanel::askAndSave, &RecorderPanel::askAndLoad, &RecorderPanel::copyScript, &RecorderPanel::copyTest,
    };
    for (const ActionRow& row : kActions) {
        auto* action = new QAction(this);
        action->setShortcut(QKeySequence(row.key));
        connect(action, &QAction::triggered, this, kHandlers[static_cast<std::size_t>(row.place)]);
        addAction(action);
        m_texts->keep([action, &row] {
            action->setText(translated(row.text));
            action->setToolTip(toolTipOf(row));
        });
        addButton(bar, action);
    }
    bar->addStretch(1);
}

void RecorderPanel::addButton(QHBoxLayout* bar, QAction* action) const
{
    auto* button = new QPushButton;
    const auto follow = [button, action] {
        // The style's buttons are wider than eight of them have room for in a narrow window.
        const QFontMetrics metrics = button->fontMetrics();
        button->setMinimumWidth(metrics.horizontalAdvance(action->text()) + metrics.height());
        button->setText(action->text());
        button->setToolTip(action->toolTip());
        button->setEnabled(action->isEnabled());
    };
    follow();
    connect(action, &QAction::changed, button, follow);
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    bar->addWidget(button);
}

void RecorderPanel::updateActions()
{
    const Recording& recording = m_model->recording();
    int met = 0;
    const auto meet = [&met](Need need, bool isMet) { met |= isMet ? need : 0; };
    meet(NoRecording, !m_recorder.isRecording());
    meet(NoReplay, !m_playback->isRunning());
    meet(NoAnswer, !m_playback->isBusy());
    meet(Steps, !recording.isEmpty());
    meet(Answers, m_recorder.isRecording() || recording.hasAnswers());
    meet(Activity, m_recorder.isRecording() || m_playback->isRunning() || m_model->currentStep() >= 0);
    for (const ActionRow& row : kActions)
        actions().at(row.place)->setEnabled((row.needs & ~met) == 0);
    m_message->setText(stateText());
}

QString RecorderPanel::stateText() const
{
    if (!m_complaint.isEmpty())
        return m_complaint;
    const int count = m_model->rowCount();
    if (m_recorder.isRecording())
        return QCoreApplication::translate("workbench", "Recording: %n step(s).", nullptr, count);
    if (m_model->currentStep() < 0)
        return QCoreApplication::translate("workbench", "%n step(s).", nullptr, count);
    const QString place = translated(QT_TRANSLATE_NOOP("workbench", "Replay: step %1 of %2"))
                              .arg(QString::number(m_model->currentStep() + 1), QString::number(count));
    const QString differing =
        QCoreApplication::translate("workbench", "%n step(s) answered otherwise.", nullptr, m_model->differingSteps());
    return place + QStringLiteral(" · ") + differing;
}

} // namespace workbench
