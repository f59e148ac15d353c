#include "benchmarks/Peer.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStaticText>

#include <algorithm>

namespace bench {

namespace {

constexpr int kRowHeight = 24;
constexpr int kPadding = 6;
constexpr int kUnprepared = -2;

/// The floor: one widget that paints the texts and does nothing else. Prepared texts are kept until they change.
class PaintedWidget : public QWidget
{
public:
    explicit PaintedWidget(QWidget* parent)
        : QWidget(parent)
        , m_content(modes()[0])
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        renewAll();
    }

    void switchTo(const Mode& mode)
    {
        m_content.switchTo(mode);
        renewAll();
        update();
    }

    void changeNumber(double value)
    {
        m_content.setNumber(kChangedCell, value);
        const int position = int(positionOf(kChangedCell));
        renew(m_values[std::size_t(position)], m_content.value(position));
        const auto& shown = m_content.shown();
        const auto found = std::find(shown.begin(), shown.end(), position);
        if (found != shown.end())
            update(rowRect(int(found - shown.begin())));
    }

    const ContentState& content() const
    {
        return m_content;
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.fillRect(event->rect(), palette().window());
        const int rowsShown = int(m_content.shown().size());
        const int last = std::min(event->rect().bottom() / kRowHeight, rowsShown - 1);
        for (int row = event->rect().top() / kRowHeight; row <= last; ++row)
            paintRow(painter, row);
    }

private:
    QRect rowRect(int row) const
    {
        return {0, row * kRowHeight, width(), kRowHeight};
    }

    void renewAll()
    {
        for (std::size_t i = 0; i < kRowCount; ++i) {
            renew(m_labels[i], m_content.label(int(i)));
            renew(m_values[i], m_content.value(int(i)));
        }
    }

    static void renew(QStaticText& text, const QString& content)
    {
        if (text.text() == content)
            return;
        text = QStaticText(content);
        text.setTextFormat(Qt::PlainText);
        text.setTextWidth(kUnprepared);
    }

    // Laid out at the first paint after a change, and not at each one.
    static void prepare(QStaticText& text, const QPainter& painter)
    {
        if (text.textWidth() < kUnprepared + 1 && text.textWidth() > kUnprepared - 1) {
            text.setTextWidth(-1);
            text.prepare(painter.transform(), painter.font());
        }
    }

    void paintRow(QPainter& painter, int row)
    {
        const auto position = std::size_t(m_content.shown()[std::size_t(row)]);
        const QRect rect = rowRect(row);
        const int top = rect.top() + (kRowHeight - painter.fontMetrics().height()) / 2;
        QStaticText& label = m_labels[position];
        QStaticText& value = m_values[position];
        prepare(label, painter);
        prepare(value, painter);
        painter.drawStaticText(kPadding, top, label);
        painter.drawStaticText(width() - kPadding - int(value.size().width()), top, value);
        painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, palette().mid());
    }

    ContentState m_content;
    std::array<QStaticText, kRowCount> m_labels;
    std::array<QStaticText, kRowCount> m_values;
};

class PaintedPeer : public Peer
{
public:
    explicit PaintedPeer(QWidget* stage)
        : m_widget(stage)
    {
    }

    QWidget& widget() override
    {
        return m_widget;
    }

    void switchTo(const Mode& mode) override
    {
        m_widget.switchTo(mode);
    }

    void changeNumber(double value) override
    {
        m_widget.changeNumber(value);
    }

    QSet<int> shownRows() override
    {
        QSet<int> shown;
        for (const int position : m_widget.content().shown())
            shown.insert(rows()[std::size_t(position)].id);
        return shown;
    }

private:
    PaintedWidget m_widget;
};

} // namespace

std::unique_ptr<Peer> makePainted(QWidget* stage)
{
    return std::make_unique<PaintedPeer>(stage);
}

} // namespace bench
