#pragma once

#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QLineEdit;

namespace TC {
class COrderParamBaseTable;
}

namespace workbench {

class HostTable;
class LanguageTexts;
class TicketModel;

/// The live ticket: the table's state, the settings record and its parameter string, what changed last marked.
///
/// Its actions (QWidget::actions(), in the order of the buttons) copy; they carry the shortcuts and belong into a menu.
class TicketPanel : public QWidget
{
    Q_OBJECT
public:
    explicit TicketPanel(QWidget* parent = nullptr);

    /// A new table, or another trader type for its default records.
    void setTable(TC::COrderParamBaseTable* table, int traderType);

    /// Reads the table again. Safe from inside its events: nothing is sent.
    void refresh();

    QString parameterString() const;
    TicketModel* model() const;

private:
    void createBar(QBoxLayout* layout);
    void copy(int what) const;

    QPointer<TC::COrderParamBaseTable> m_table;
    TicketModel* m_model;
    HostTable* m_view;
    QLineEdit* m_text;
    LanguageTexts* m_texts;
};

} // namespace workbench
