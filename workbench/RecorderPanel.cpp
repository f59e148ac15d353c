#include "workbench/RecorderPanel.h"

#include "workbench/HostTable.h"
#include "workbench/LanguageTexts.h"
#include "workbench/Playback.h"
#include "workbench/Recorder.h"
#include "workbench/ReplayView.h"
#include "workbench/StepModel.h"
#include "workbench/Vocabulary.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace workbench {

namespace {

/// Text that each column but the last has room for, so that all of them are seen in a narrow window.
constexpr std::array<const char*, StepModel::Replay> kColumnSamples = {"▶ 00000", "filterReset", "basket00",
                                                                       "setOrderSettings [0, 0]", "1061 1062 129"};

void fitColumns(QTableView& view)
{
    const QFontMetrics metrics = view.fontMetrics();
    for (int column = 0; column < static_cast<int>(kColumnSamples.size()); ++column) {
        const QString sample = QString::fromUtf8(kColumnSamples[static_cast<std::size_t>(column)]);
        view.setColumnWidth(column, metrics.horizontalAdvance(sample) + metrics.height());
    }
}

QString fileFilter()
{
    return translated(QT_TRANSLATE_NOOP("workbench", "Replay scripts (*.jsonl)"));
}

} // namespace

RecorderPanel::RecorderPanel(Recorder& recorder, QWidget* parent)
    : QWidget(parent)
    , m_recorder(recorder)
    , m_playback(new Playback(this))
    , m_model(new StepModel(this))
    , m_view(new HostTable(this))
    , m_message(new QLabel)
    , m_picture(new ReplayView(this))
    , m_texts(new LanguageTexts(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    auto* bar = new QHBoxLayout;
    createBar(bar);
    layout->addLayout(bar);
    createView();
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_message->setWordWrap(true);
    layout->addWidget(m_message);
    connectRecorder();
    connectPlayback();
    m_texts->keep([this] {
        m_model->retranslate();
        updateActions();
    });
}

void RecorderPanel::createView()
{
    m_view->setModel(m_model);
    m_view->setFitColumns([this] { fitColumns(*m_view); });
    connect(m_view, &HostTable::copyRequested, this, &RecorderPanel::copyScript);
    m_texts->keep([this] { m_view->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Recorded steps"))); });
    layout()->addWidget(m_view);
}

void RecorderPanel::connectRecorder()
{
    connect(&m_recorder, &Recorder::started, this, [this] {
        m_complaint.clear();
        m_playback->setRecording({});
        m_model->setRecording(m_recorder.recording());
        m_view->scrollToBottom();
        updateActions();
    });
    connect(&m_recorder, &Recorder::stepAdded, this, &RecorderPanel::takeStep);
    connect(&m_recorder, &Recorder::stepAnswered, this, [this] { m_model->refreshFrom(m_model->rowCount() - 1); });
    connect(&m_recorder, &Recorder::stopped, this, [this] {
        m_playback->setRecording(m_model->recording());
        updateActions();
    });
}

void RecorderPanel::connectPlayback()
{
    connect(m_playback, &Playback::begun, m_model, &StepModel::clearReplay);
    connect(m_playback, &Playback::answered, this, [this](int step, const replay::Json& answer) {
        m_model->setReplayed(step, answer);
        onAnswered(step);
    });
    connect(m_playback, &Playback::pictured, m_picture, &ReplayView::setPicture);
    connect(m_playback, &Playback::failed, this, &RecorderPanel::complain);
    connect(m_playback, &Playback::stateChanged, this, &RecorderPanel::updateActions);
}

void RecorderPanel::takeStep()
{
    m_model->append(m_recorder.recording().steps.back());
    m_view->scrollToBottom();
    updateActions();
}

void RecorderPanel::onAnswered(int step)
{
    m_picture->setStep(step + 1, m_model->rowCount());
    m_view->scrollTo(m_model->index(step, 0));
    m_message->setText(stateText());
}

void RecorderPanel::record()
{
    m_recorder.start();
}

void RecorderPanel::stop()
{
    if (m_recorder.isRecording()) {
        m_recorder.stop();
        return;
    }
    m_complaint.clear();
    m_playback->end();
    m_model->clearReplay();
    m_picture->hide();
    updateActions();
}

void RecorderPanel::step()
{
    m_complaint.clear();
    m_playback->step();
}

void RecorderPanel::replay()
{
    m_complaint.clear();
    m_playback->runToEnd();
}

void RecorderPanel::copyScript()
{
    QApplication::clipboard()->setText(QString::fromStdString(scriptText(m_model->recording())));
}

void RecorderPanel::copyTest()
{
    const QString name = m_path.isEmpty() ? QStringLiteral("recording") : QFileInfo(m_path).completeBaseName();
    QApplication::clipboard()->setText(QString::fromStdString(testText(m_model->recording(), name.toStdString())));
}

bool RecorderPanel::save(const QString& path)
{
    const RecordingProblem problem = saveRecording(m_model->recording(), path);
    show(problem);
    if (problem.isGood())
        m_path = path;
    return problem.isGood();
}

bool RecorderPanel::load(const QString& path)
{
    Recording recording;
    const RecordingProblem problem = loadRecording(path, recording);
    show(problem);
    if (!problem.isGood())
        return false;
    m_path = path;
    m_playback->setRecording(recording);
    m_model->setRecording(recording);
    m_picture->hide();
    updateActions();
    return true;
}

void RecorderPanel::askAndSave()
{
    const QString path = QFileDialog::getSaveFileName(this, QString(), m_path, fileFilter());
    if (!path.isEmpty())
        save(path);
}

void RecorderPanel::askAndLoad()
{
    const QString path = QFileDialog::getOpenFileName(this, QString(), m_path, fileFilter());
    if (!path.isEmpty())
        load(path);
}

Playback* RecorderPanel::playback() const
{
    return m_playback;
}

StepModel* RecorderPanel::model() const
{
    return m_model;
}

QString RecorderPanel::message() const
{
    return m_message->text();
}

void RecorderPanel::show(const RecordingProblem& problem)
{
    complain(problemText(problem));
}

void RecorderPanel::complain(const QString& text)
{
    m_complaint = text;
    updateActions();
}

} // namespace workbench
