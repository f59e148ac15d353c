#include "benchmarks/NativeForm.h"

#include "benchmarks/Peer.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace bench {

NativeForm::NativeForm(QWidget* parent)
    : QScrollArea(parent)
{
    auto* form = new QWidget;
    auto* layout = new QFormLayout(form);
    for (const Row& row : rows()) {
        m_labels.push_back(new QLabel(row.name()));
        m_fields.push_back(makeNativeField(row));
        layout->addRow(m_labels.back(), m_fields.back().field);
    }
    show(modes()[0].shown);
    setWidgetResizable(true);
    setWidget(form);
}

void NativeForm::show(const QSet<int>& shown)
{
    for (std::size_t i = 0; i < kRowCount; ++i) {
        const bool isShown = shown.contains(rows()[i].id);
        m_labels[i]->setVisible(isShown);
        m_fields[i].field->setVisible(isShown);
    }
}

void NativeForm::switchTo(const Mode& mode)
{
    switchFields(m_fields, mode);
    show(mode.shown);
}

void NativeForm::changeNumber(double value)
{
    m_fields[positionOf(kChangedCell)].number->setValue(value);
}

QSet<int> NativeForm::shownRows() const
{
    QSet<int> shown;
    for (std::size_t i = 0; i < kRowCount; ++i) {
        if (!m_fields[i].field->isHidden())
            shown.insert(rows()[i].id);
    }
    return shown;
}

namespace {

class NativePeer : public Peer
{
public:
    NativePeer(QWidget* stage, bool strip)
        : m_whole(strip ? new QWidget(stage) : nullptr)
        , m_form(new NativeForm(strip ? m_whole : stage))
    {
        if (strip)
            addStrip();
    }

    ~NativePeer() override
    {
        delete &widget();
    }

    QWidget& widget() override
    {
        return m_whole ? *m_whole : *m_form;
    }

    void switchTo(const Mode& mode) override
    {
        m_form->switchTo(mode);
    }

    void changeNumber(double value) override
    {
        m_form->changeNumber(value);
    }

    QSet<int> shownRows() override
    {
        return m_form->shownRows();
    }

private:
    void addStrip()
    {
        auto* column = new QVBoxLayout(m_whole);
        auto* strip = new QHBoxLayout;
        auto* plain = new QPushButton(QStringLiteral("普通交易"));
        plain->setCheckable(true);
        plain->setChecked(true);
        strip->addWidget(plain);
        strip->addStretch();
        strip->addWidget(new QPushButton(QStringLiteral("?")));
        column->setContentsMargins(0, 0, 0, 0);
        column->addLayout(strip);
        column->addWidget(m_form);
    }

    QWidget* const m_whole;
    NativeForm* const m_form;
};

} // namespace

std::unique_ptr<Peer> makeNativeForm(QWidget* stage)
{
    return std::make_unique<NativePeer>(stage, false);
}

std::unique_ptr<Peer> makeNativeFormWithStrip(QWidget* stage)
{
    return std::make_unique<NativePeer>(stage, true);
}

} // namespace bench
