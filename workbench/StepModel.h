#pragma once

#include "workbench/Recording.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

namespace workbench {

/// The steps of a recording with what was heard after each, and beside them what a replay answered and where that
/// differs.
class StepModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Number, Command, Object, Arguments, Events, Replay, ColumnCount };

    explicit StepModel(QObject* parent = nullptr);

    /// Takes other steps; nothing of them is replayed.
    void setRecording(const Recording& recording);
    const Recording& recording() const;

    void append(const std::shared_ptr<RecordedStep>& step);

    /// The last steps got their answers.
    void refreshFrom(int row);

    /// What a replay answered to that step, which is the current one from then on.
    void setReplayed(int row, const replay::Json& answer);

    /// Nothing is replayed, no step is the current one.
    void clearReplay();

    /// The step that was replayed last; -1 without one.
    int currentStep() const;

    /// How many replayed steps were wrong commands or answered otherwise than recorded.
    int differingSteps() const;

    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    /// What a replay answered to a step.
    struct Replayed
    {
        replay::Json answer; ///< null before it is replayed
        QStringList differences;
    };

    QString text(int row, int column) const;
    QString toolTip(int row) const;
    QVariant colour(int row, int column) const;
    QString replayText(const Replayed& replayed, bool isCompared) const;
    bool isWrong(const Replayed& replayed) const;

    Recording m_recording;
    std::vector<Replayed> m_replayed;
    int m_current = -1;
};

} // namespace workbench
