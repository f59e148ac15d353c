#pragma once

#include <QWidget>

#include <optional>

class QCheckBox;
class QDateTimeEdit;
class QFormLayout;
class QSpinBox;

namespace workbench {

class LanguageTexts;
class NumberCombo;

/// The form for the host's services: client mode and clock. It announces what a person chooses.
class HostForm : public QWidget
{
    Q_OBJECT
public:
    explicit HostForm(QWidget* parent = nullptr);

    /// Seconds since the epoch at which the clock stands; nothing while it is the system's.
    std::optional<qint64> clock() const;

    /// Both show a state without announcing it.
    void setClientMode(int mode);
    void setClock(std::optional<qint64> frozen);

Q_SIGNALS:
    void clientModeChosen(int mode);
    void clockChosen();

private:
    void addMode();
    void addClock();
    void followFreeze();

    LanguageTexts* m_texts;
    QFormLayout* m_form;
    NumberCombo* m_mode;
    QCheckBox* m_isFrozen;
    QDateTimeEdit* m_time;
    QSpinBox* m_step;
};

} // namespace workbench
