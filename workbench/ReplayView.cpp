#include "workbench/ReplayView.h"

#include "workbench/LanguageTexts.h"
#include "workbench/Vocabulary.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace workbench {

ReplayView::ReplayView(QWidget* parent)
    : QWidget(parent, Qt::Tool)
    , m_picture(new QLabel)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_picture);
    (new LanguageTexts(this))->keep([this] {
        showTitle();
        m_picture->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "What the replayed object looks like")));
    });
}

void ReplayView::setPicture(const QImage& picture)
{
    m_picture->setPixmap(QPixmap::fromImage(picture));
    show();
}

void ReplayView::setStep(int step, int stepCount)
{
    m_step = step;
    m_stepCount = stepCount;
    showTitle();
}

void ReplayView::showTitle()
{
    setWindowTitle(translated(QT_TRANSLATE_NOOP("workbench", "Replay: step %1 of %2")).arg(m_step).arg(m_stepCount));
}

} // namespace workbench
