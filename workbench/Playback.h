#pragma once

#include "workbench/Recording.h"

#include <QImage>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>

#include <deque>

namespace workbench {

/// Replays a recording through orderparam-replay, step by step or at once.
///
/// The program runs beside this one. Feature modules, clock, scale, theme and accounts belong to a whole process, so a
/// replay in this one would change them under the live tables, and would have to give them back after every step. Apart
/// from that the live tables stay as they are, the replay is the very one that others get from the script, and a script
/// that crashes its program takes no workbench along. What the replayed object looks like comes as a picture.
class Playback : public QObject
{
    Q_OBJECT
public:
    explicit Playback(QObject* parent = nullptr);
    ~Playback() override;

    /// The program that replays; at first the one that is installed beside this one.
    void setProgram(const QString& path);

    /// What the next run replays; a run under way is ended.
    void setRecording(const Recording& recording);

    /// Carries out the next step, or all that are left. Without a run under way one begins at the first step.
    void step();
    void runToEnd();

    /// Ends the run at once.
    void end();

    /// From the first step of a run until its end; at its last step it ends by itself.
    bool isRunning() const;

    /// Whether an answer is awaited.
    bool isBusy() const;

    /// How many steps of the run, or of the last one, are answered.
    int answeredSteps() const;

Q_SIGNALS:
    /// A run begins at the first step.
    void begun();
    void answered(int step, const replay::Json& answer);

    /// What the object of the last step looks like now.
    void pictured(const QImage& picture);

    /// The run was broken off.
    void failed(const QString& reason);
    void stateChanged();

private:
    bool ensureRun();
    void begin();
    void sendStep();
    void sendPicture();
    void send(const replay::Json& command, int step);
    void followObject(const replay::Json& command);
    void readAnswers();
    void take(const replay::Json& answer);
    void onFinished();
    void fail(const QString& reason);

    QString m_program;
    Recording m_recording;
    QProcess m_process;
    QTemporaryDir m_pictures;
    std::deque<int> m_awaited; ///< steps that were sent; kPicture for pictures
    std::string m_object;      ///< that the last steps are about; empty for none
    int m_next = 0;
    int m_answered = 0;
    bool m_isRunning = false;
};

} // namespace workbench
