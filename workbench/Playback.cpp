#include "workbench/Playback.h"

#include "workbench/Vocabulary.h"

#include "replay/Script.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace workbench {

namespace {

using replay::Json;

constexpr int kPicture = -1;

/// How long the program may take to go once it was told to, in milliseconds.
constexpr int kPatience = 2000;

QString installedProgram()
{
    const QString name = QStringLiteral("orderparam-replay");
    const QString beside = QDir(QCoreApplication::applicationDirPath()).filePath(name);
    return QFileInfo(beside).isExecutable() ? beside : QStandardPaths::findExecutable(name);
}

/// The object that a command is about; empty for none.
std::string objectOf(const Json& command)
{
    for (const char* key : {"on", "name"}) {
        const auto found = command.find(key);
        if (found != command.end() && found->is_string())
            return found->get<std::string>();
    }
    return {};
}

} // namespace

Playback::Playback(QObject* parent)
    : QObject(parent)
    , m_program(installedProgram())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    m_process.setProcessEnvironment(environment);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &Playback::readAnswers);
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &Playback::onFinished);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            fail(translated(QT_TRANSLATE_NOOP("workbench", "The replay program %1 cannot be started."))
                     .arg(m_program.isEmpty() ? QStringLiteral("orderparam-replay") : m_program));
    });
}

Playback::~Playback()
{
    blockSignals(true);
    end();
}

void Playback::setProgram(const QString& path)
{
    m_program = path;
}

void Playback::setRecording(const Recording& recording)
{
    end();
    m_recording = recording;
    m_answered = 0;
}

bool Playback::isRunning() const
{
    return m_isRunning;
}

bool Playback::isBusy() const
{
    return !m_awaited.empty();
}

int Playback::answeredSteps() const
{
    return m_answered;
}

void Playback::step()
{
    if (!ensureRun())
        return;
    sendStep();
    sendPicture();
    Q_EMIT stateChanged();
}

void Playback::runToEnd()
{
    if (!ensureRun())
        return;
    while (m_next < static_cast<int>(m_recording.steps.size()))
        sendStep();
    sendPicture();
    Q_EMIT stateChanged();
}

/// False when there is nothing to carry out.
bool Playback::ensureRun()
{
    if (m_recording.isEmpty())
        return false;
    if (!m_isRunning)
        begin();
    return m_isRunning && m_next < static_cast<int>(m_recording.steps.size());
}

void Playback::begin()
{
    m_next = 0;
    m_answered = 0;
    m_object.clear();
    m_isRunning = true;
    Q_EMIT begun();
    m_process.start(m_program, {});
}

void Playback::sendStep()
{
    const Json& command = m_recording.steps[static_cast<std::size_t>(m_next)]->command;
    followObject(command);
    send(command, m_next++);
}

/// Showing and sizing are what windows do by themselves: they are no reason to look at another object.
void Playback::followObject(const Json& command)
{
    const std::string name = command.value("do", "");
    const std::string object = objectOf(command);
    if (name == "reset" || (name == "delete" && object == m_object))
        m_object.clear();
    else if (!object.empty() && name != "delete" && (m_object.empty() || (name != "show" && name != "resize")))
        m_object = object;
}

void Playback::sendPicture()
{
    if (m_object.empty())
        return;
    const QString file = m_pictures.filePath(QStringLiteral("object.png"));
    send({{"do", "screenshot"}, {"on", m_object}, {"file", file.toStdString()}}, kPicture);
}

void Playback::send(const Json& command, int step)
{
    m_awaited.push_back(step);
    m_process.write(QByteArray::fromStdString(replay::writtenLine(command) + '\n'));
}

void Playback::readAnswers()
{
    while (m_isRunning && m_process.canReadLine()) {
        const QByteArray line = m_process.readLine();
        const Json answer = Json::parse(line.toStdString(), nullptr, false);
        if (!answer.is_object() || m_awaited.empty())
            return fail(translated(QT_TRANSLATE_NOOP("workbench", "The replay program answers what is no answer: %1"))
                            .arg(QString::fromUtf8(line.left(80))));
        take(answer);
    }
}

void Playback::take(const Json& answer)
{
    const int step = m_awaited.front();
    m_awaited.pop_front();
    if (step == kPicture) {
        const QImage picture(m_pictures.filePath(QStringLiteral("object.png")));
        if (answer.value("ok", false) && !picture.isNull())
            Q_EMIT pictured(picture);
    } else {
        m_answered = step + 1;
        Q_EMIT answered(step, answer);
    }
    if (m_awaited.empty() && m_next == static_cast<int>(m_recording.steps.size()))
        end();
    else if (m_awaited.empty())
        Q_EMIT stateChanged();
}

void Playback::end()
{
    if (!m_isRunning)
        return;
    m_isRunning = false;
    m_awaited.clear();
    m_process.kill();
    m_process.waitForFinished(kPatience);
    Q_EMIT stateChanged();
}

void Playback::onFinished()
{
    if (!m_isRunning)
        return;
    readAnswers();
    if (!m_isRunning)
        return;
    const QString last = QString::fromUtf8(m_process.readAllStandardError()).trimmed().section(QLatin1Char('\n'), -1);
    fail(translated(QT_TRANSLATE_NOOP("workbench", "The replay program ended at step %1. %2"))
             .arg(QString::number(m_answered + 1), last));
}

void Playback::fail(const QString& reason)
{
    end();
    Q_EMIT failed(reason);
}

} // namespace workbench
