#pragma once

#include <QWidget>

class QImage;
class QLabel;

namespace workbench {

/// The window of a replay: what the replayed object looks like, and after which step.
class ReplayView : public QWidget
{
    Q_OBJECT
public:
    explicit ReplayView(QWidget* parent = nullptr);

    /// Shows the picture without taking the keyboard away.
    void setPicture(const QImage& picture);

    void setStep(int step, int stepCount);

private:
    void showTitle();

    QLabel* m_picture;
    int m_step = 0;
    int m_stepCount = 0;
};

} // namespace workbench
