#include "workbench/HostForm.h"

#include "workbench/LanguageTexts.h"
#include "workbench/NumberCombo.h"

#include <TC/CTimeService.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include <array>

namespace workbench {

namespace {

constexpr int kUsualStep = 60;
constexpr int kLargestStep = 86400;

// clang-format off
constexpr std::array kClientModes = {
    NamedValue{0,   QT_TRANSLATE_NOOP("workbench", "usual client")},
    NamedValue{100, QT_TRANSLATE_NOOP("workbench", "announces volume changes")},
    NamedValue{101, QT_TRANSLATE_NOOP("workbench", "announces volume changes, too")},
};
// clang-format on

/// The time of the host's clock; the system's where there is none.
QDateTime timeOfClock()
{
    const TC::CTimeService* clock = TC::getTimeService();
    return clock ? QDateTime::fromSecsSinceEpoch(clock->currentTime()) : QDateTime::currentDateTime();
}

} // namespace

HostForm::HostForm(QWidget* parent)
    : QWidget(parent)
    , m_texts(new LanguageTexts(this))
    , m_form(new QFormLayout(this))
    , m_mode(new NumberCombo({kClientModes.data(), static_cast<int>(kClientModes.size())}, 0))
    , m_isFrozen(new QCheckBox)
    , m_time(new QDateTimeEdit(timeOfClock()))
    , m_step(new QSpinBox)
{
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addMode();
    addClock();
    followFreeze();
}

void HostForm::addMode()
{
    auto* title = new QLabel;
    title->setBuddy(m_mode);
    m_form->addRow(title, m_mode);
    m_texts->keep([this, title] {
        title->setText(translated(QT_TRANSLATE_NOOP("workbench", "Client mode (&j)")));
        m_mode->retranslate();
    });
    connect(m_mode, &NumberCombo::valueChanged, this, &HostForm::clientModeChosen);
}

void HostForm::addClock()
{
    auto* advance = new QPushButton;
    auto* row = new QHBoxLayout;
    m_time->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    m_time->setKeyboardTracking(false);
    m_step->setRange(1, kLargestStep);
    m_step->setValue(kUsualStep);
    row->addWidget(m_step, 1);
    row->addWidget(advance);
    m_form->addRow(m_isFrozen);
    m_form->addRow(m_time);
    m_form->addRow(row);
    m_texts->keep([this, advance] {
        m_isFrozen->setText(translated(QT_TRANSLATE_NOOP("workbench", "Free&ze the clock at")));
        m_time->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Time of the clock")));
        m_step->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Step of the clock")));
        m_step->setSuffix(translated(QT_TRANSLATE_NOOP("workbench", " s")));
        advance->setText(translated(QT_TRANSLATE_NOOP("workbench", "Advance")));
    });
    connect(m_isFrozen, &QCheckBox::toggled, this, [this](bool frozen) {
        if (frozen) {
            const QSignalBlocker calm(m_time);
            m_time->setDateTime(timeOfClock());
        }
        followFreeze();
        Q_EMIT clockChosen();
    });
    connect(m_time, &QDateTimeEdit::dateTimeChanged, this, &HostForm::clockChosen);
    connect(advance, &QPushButton::clicked, this,
            [this] { m_time->setDateTime(m_time->dateTime().addSecs(m_step->value())); });
    connect(m_isFrozen, &QCheckBox::toggled, advance, &QWidget::setEnabled);
    advance->setEnabled(false);
}

void HostForm::followFreeze()
{
    m_time->setEnabled(m_isFrozen->isChecked());
    m_step->setEnabled(m_isFrozen->isChecked());
}

std::optional<qint64> HostForm::clock() const
{
    return m_isFrozen->isChecked() ? std::optional<qint64>(m_time->dateTime().toSecsSinceEpoch()) : std::nullopt;
}

void HostForm::setClientMode(int mode)
{
    m_mode->setValue(mode);
}

void HostForm::setClock(std::optional<qint64> frozen)
{
    const QSignalBlocker quiet(this);
    m_isFrozen->setChecked(frozen.has_value());
    if (frozen)
        m_time->setDateTime(QDateTime::fromSecsSinceEpoch(*frozen));
}

} // namespace workbench
