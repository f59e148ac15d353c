#pragma once

#include "workbench/Recording.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace workbench {

class HostTable;
class LanguageTexts;
class Playback;
class Recorder;
class ReplayView;
class StepModel;

/// Records, replays, loads, saves and copies; the steps in a list, with what a replay answers to each.
///
/// Its actions (QWidget::actions(), in the order of the buttons) carry the shortcuts and belong into a menu.
class RecorderPanel : public QWidget
{
    Q_OBJECT
public:
    explicit RecorderPanel(Recorder& recorder, QWidget* parent = nullptr);

    /// @name What the buttons do
    /// @{
    void record();

    /// Ends the recording, or the replay.
    void stop();
    void step();
    void replay();
    void copyScript();
    void copyTest();
    /// @}

    /// What the buttons do once a file is chosen. @returns false, and says why, when it cannot be read or written
    bool save(const QString& path);
    bool load(const QString& path);

    Playback* playback() const;
    StepModel* model() const;

    /// What is under way, or what went wrong.
    QString message() const;

private:
    void createBar(QHBoxLayout* bar);
    void addButton(QHBoxLayout* bar, QAction* action) const;
    void createView();
    void connectRecorder();
    void connectPlayback();
    void askAndSave();
    void askAndLoad();
    void takeStep();
    void onAnswered(int step);
    void updateActions();
    void show(const RecordingProblem& problem);

    /// Says @p text until something else happens.
    void complain(const QString& text);
    QString stateText() const;

    Recorder& m_recorder;
    Playback* m_playback;
    StepModel* m_model;
    HostTable* m_view;
    QLabel* m_message;
    ReplayView* m_picture;
    LanguageTexts* m_texts;
    QString m_complaint;
    QString m_path; ///< of the last file; empty before there is one
};

} // namespace workbench
