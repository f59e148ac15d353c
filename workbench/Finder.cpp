#include "workbench/Finder.h"

#include "workbench/HostTable.h"
#include "workbench/Vocabulary.h"

#include "reference/toolkit/Resources.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

namespace {

constexpr int kWidth = 460;
constexpr int kRows = 14;

enum Column { Text, Keys };

bool holdsAll(const QString& text, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(),
                       [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

bool movesInList(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

Finder::Finder(QWidget* window)
    : QFrame(window, Qt::Popup)
    , m_text(new QLineEdit)
    , m_model(new QStandardItemModel(this))
    , m_list(new HostTable)
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_text);
    layout->addWidget(m_list, 1);
    createList();
    setFrameShape(QFrame::StyledPanel);
    setFocusProxy(m_text);
    m_text->installEventFilter(this);
    connect(m_text, &QLineEdit::textChanged, this, &Finder::search);
    connect(m_list, &HostTable::clicked, this, [this](const QModelIndex& index) { run(index.row()); });
}

void Finder::createList()
{
    m_list->setModel(m_model);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->horizontalHeader()->hide();
    m_list->setFitColumns([this] {
        m_model->setColumnCount(2);
        m_list->horizontalHeader()->setStretchLastSection(false);
        m_list->horizontalHeader()->setSectionResizeMode(Text, QHeaderView::Stretch);
        m_list->horizontalHeader()->setSectionResizeMode(Keys, QHeaderView::ResizeToContents);
    });
}

void Finder::open(std::vector<FinderEntry> entries)
{
    m_entries = std::move(entries);
    m_text->setPlaceholderText(translated(QT_TRANSLATE_NOOP("workbench", "A command, a part, or a cell")));
    m_text->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Find")));
    m_list->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Found")));
    m_text->clear();
    search(QString());
    m_list->fit();
    const QWidget& window = *parentWidget();
    const int width = qMin(qRound(kWidth * WQ::resources::scale()), window.width());
    const int rows = (kRows + 2) * m_list->verticalHeader()->defaultSectionSize();
    resize(width, qMin(rows, window.height()));
    move(window.mapToGlobal(QPoint((window.width() - width) / 2, window.height() / 10)));
    show();
    m_text->setFocus(Qt::PopupFocusReason);
}

void Finder::search(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    m_model->removeRows(0, m_model->rowCount());
    m_found.clear();
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (!holdsAll(m_entries[i].text, words))
            continue;
        auto* const keys = new QStandardItem(m_entries[i].keys);
        keys->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_model->appendRow({new QStandardItem(m_entries[i].text), keys});
        m_found.push_back(i);
    }
    m_list->setCurrentIndex(m_model->index(0, Text));
}

bool Finder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (movesInList(key)) {
        QCoreApplication::sendEvent(m_list, event);
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        run(m_list->currentIndex().row());
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

/// What is done may open lists and dialogs of its own: this one is gone by then.
void Finder::run(int row)
{
    if (row < 0 || row >= int(m_found.size()))
        return;
    const std::function<void()> chosen = m_entries[m_found[std::size_t(row)]].run;
    close();
    m_entries.clear();
    chosen();
}

} // namespace workbench
