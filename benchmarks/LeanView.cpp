#include "benchmarks/LeanModel.h"
#include "benchmarks/Peer.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTableView>

namespace bench {

namespace {

constexpr int kRowHeight = 24;
constexpr int kPadding = 6;

/// Two texts and a line under them.
class TextDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const auto alignment = int(Qt::AlignVCenter | (index.column() == 0 ? Qt::AlignLeft : Qt::AlignRight));
        painter->drawText(option.rect.adjusted(kPadding, 0, -kPadding, 0), alignment, index.data().toString());
        const QRect line(option.rect.left(), option.rect.bottom(), option.rect.width(), 1);
        painter->fillRect(line, option.palette.mid());
    }
};

/// The least that a QTableView needs: painting delegates, rows of one height, inserted and removed.
class LeanViewPeer : public Peer
{
public:
    explicit LeanViewPeer(QWidget* stage)
        : m_view(new QTableView(stage))
        , m_model(new LeanModel(m_view))
    {
        m_view->horizontalHeader()->hide();
        m_view->verticalHeader()->hide();
        m_view->horizontalHeader()->setStretchLastSection(true);
        m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        m_view->verticalHeader()->setDefaultSectionSize(kRowHeight);
        m_view->setShowGrid(false);
        m_view->setItemDelegate(new TextDelegate(m_view));
        m_view->setModel(m_model);
    }

    ~LeanViewPeer() override
    {
        delete m_view;
    }

    QWidget& widget() override
    {
        return *m_view;
    }

    void switchTo(const Mode& mode) override
    {
        m_model->switchTo(mode);
    }

    void changeNumber(double value) override
    {
        m_model->changeNumber(value);
    }

    void settle() override
    {
        m_view->visualRect(m_model->index(0, 0));
    }

    QSet<int> shownRows() override
    {
        QSet<int> shown;
        for (std::size_t i = 0; i < kRowCount; ++i) {
            if (m_model->rowOf(int(i)) >= 0)
                shown.insert(rows()[i].id);
        }
        return shown;
    }

private:
    QTableView* const m_view;
    LeanModel* const m_model;
};

} // namespace

std::unique_ptr<Peer> makeLeanView(QWidget* stage)
{
    return std::make_unique<LeanViewPeer>(stage);
}

} // namespace bench
