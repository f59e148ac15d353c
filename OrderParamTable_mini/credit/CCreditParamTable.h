#pragma once

#include <OrderParamTable_mini/OrderParamTableExport.h>

#include <WQ/CBaseWidget.h>
#include <ttservice/CStkCompactsV2.h>
#include <ttservice/Enumerations.h>

#include <QMap>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <boost/shared_ptr.hpp>

#include <initializer_list>
#include <string>

namespace WQ {
class CMultiParamsTable;
}

namespace TC {

struct CAccountData;

/// The parameter table of a credit (margin) repayment: funds account, specified contract and four read-only figures,
/// titled and measured by the operation type: quantities in shares where securities are given back (22, 23), money in
/// yuan where cash or fees are (24, 25, 1021). Row IDs: 726 account, 727 contract (hidden), 728 unrepaid, 729 repayable
/// today, 730 what there is to repay with, 731 repayable quantity.
///
/// It reports changes of account and code under the ID 725, which is none of its rows, with events 73 and 1083; an
/// operation sends the events that its comment names and no other. After each the table may have been deleted by its
/// host. In this edition accounts, contracts and available quantities have fixed answers. Nothing fails loudly.
/// Everything runs on the GUI thread.
class ORDERPARAMTABLE_EXPORT CCreditParamTable : public WQ::CBaseWidget
{
public:
    /// Builds the rows, without an account and for no operation, and takes the panel's size.
    /// @param parent the owner; null for a window of its own, which the caller owns
    explicit CCreditParamTable(QWidget* parent = nullptr);
    ~CCreditParamTable() override;

    /// The height that the shown rows need.
    /// @return pixels at the current UI scale
    int realHeight();

    /// Takes the sizes of the current UI scale, unless setIsFontScale(false). Only the owner calls it.
    void handleScaleChanged();

    /// Chooses whether the table follows the UI scale. Takes effect with the next handleScaleChanged().
    /// @param isFontScale true after construction
    void setIsFontScale(bool isFontScale);

    /// Stores where contract data is refreshed from; nothing reads it in this edition.
    /// @param source any; '0' (48) after construction
    void setCompactBrushSourceType(ttservice::ENVCompactBrushSource source);

    /// Rebuilds the account list (empty in this edition) and chooses the account that setParam() has remembered for the
    /// operation, else the first. Sends 73 with its index when there is one.
    void refreshAccounts();

    /// Chooses the account and sends 73, offered or not.
    /// @param accountId UTF-8; the event's data holds it as a QString
    void setSelectAccount(const std::string& accountId);

    /// The chosen account.
    /// @return its ID; empty when none is chosen
    QString getSelectAccount();

    /// The specified contract code, or the instrument that setStockCode() has shown.
    /// @return the text of row 727
    QString getCurrentCode();

    /// The contract that an instrument is repaid from unless one is chosen.
    /// @param code the instrument
    /// @return an empty pointer in this edition
    boost::shared_ptr<ttservice::CStkCompactsV2> getDefaultCompact(const QString& code);

    /// Would ask for the repayable figures again; changes nothing in this edition.
    /// @param code the instrument
    /// @param refresh whether to ask although nothing has changed
    /// @param compactId the contract; empty for all of them
    /// @return true: the figures are up to date
    bool refreshAvailableNum(const QString& code, bool refresh, std::string compactId);

    /// The unrepaid figure of the shown code as a number.
    /// @param compactId empty for all contracts
    /// @return shares or yuan, by the operation; 0.0 for a single contract, and for a text that is no number
    double getUnRepayNum(std::string compactId);

    /// The unrepaid figure of all contracts of the instrument.
    /// @param code the instrument
    /// @return shares for the operations 22 and 23, yuan with two decimals for 24, 25 and 1021, "0" for others and
    ///         without an account; no contract is consulted in this edition, so the figure is 0
    QString getAllUnrepayValue(const QString& code);

    /// The unrepaid figure of the default contract.
    /// @param code the instrument
    /// @return shares for 22 and 23, yuan with two decimals for 1021; "0" for others and without a default contract
    QString getDefaultUnrepayValue(const QString& code);

    /// What may be repaid today.
    /// @param code the instrument
    /// @return shares; "0" without an account, and in this edition always
    QString getTodayAvailableNum(const QString& code);

    /// Shows an unrepaid figure.
    /// @param value any text
    void refreshUnrepayValue(const QString& value);

    /// A contract was chosen: empties the code, shows the unrepaid figure and "0" to repay with.
    /// @param compact the contract; an empty one, or one without data, changes nothing
    /// @param unrepayValue the unrepaid figure as text
    /// @param showZero whether "0" is shown instead
    void setStkCompacts(boost::shared_ptr<ttservice::CStkCompactsV2> compact, QString unrepayValue, bool showZero);

    /// An instrument code was entered: shows it and, without a contract, the unrepaid and repayable figures, counted in
    /// shares whatever the operation.
    /// @param code any text; what a person may type in row 727 is not asked of it
    /// @param compactId empty to show figures; otherwise the code alone is shown
    /// @param useDefault whether the unrepaid figure is the default contract's instead of all contracts'
    void setStockCode(const QString& code, std::string compactId, bool useDefault);

    /// The operation type and the remembered values, for the host to keep. What the rows show is not in it.
    /// docs/parameter-strings.md has an example.
    /// @return operation type "+" groups of an operation type "-" row "=" value, ascending, nothing escaped; "-1" for a
    ///         fresh table
    QString param() const;

    /// Merges a parameter string into the remembered values, takes its operation type and lays the rows out. Nothing
    /// else sets the operation type, and nothing forgets a value. Sends 1083 (when no code is remembered for the
    /// operation), then 73 with the current account.
    /// @param text as param() writes it. One of less than two "+" parts changes nothing, the operation type alone above
    ///        all; groups of less than four entries and entries without "=" are skipped; what is not a number reads as
    ///        0
    void setParam(QString text);

    /// @name Inert in this edition
    /// @{

    /// Would change between shares and lots.
    void doStockUnitChange();

    /// Would take an operation; only setParam() does.
    /// @param operationType not looked at
    void setOperationType(ttservice::EOperationType operationType, bool);
    /// @}

protected:
    /// Builds the rows; the constructor calls it once.
    void createUi();

    /// Takes the panel's size at the current UI scale.
    void resizeTable();

    /// Sets the width of the titles: 120 pixels; 155 for operation 1021, whose title is the longest, at any UI scale
    /// but 1.0.
    void resetColumnWidth();

    /// Lays the rows out for the operation and shows the remembered figures. When no code is remembered, first empties
    /// the rows 727 to 731 and sends 1083. Ends with 73, the current account.
    void refreshUIData();

    /// Shows a code, or empties the code and all figures.
    /// @param code the instrument
    /// @param setCode false to empty
    /// @param refresh handed to refreshAvailableNum()
    /// @param compactId handed to refreshAvailableNum()
    void setFixCodeText(const QString& code, bool setCode, bool refresh, std::string compactId);

    /// The specified contract was edited: an empty one empties the figures and sends 1083.
    /// @param code any other changes nothing
    void fixCodeChanged(const QString& code);

    /// What the contracts of an operation borrow.
    /// @param operationType any
    /// @return securities for 22, 23 and 1021, cash for 24 and 25, none for others
    ttservice::ENVCompactType getCurrentCompactType(ttservice::EOperationType operationType);

    /// How many shares a figure counts as one.
    /// @return 1.0
    double getCurrentNumUnit();

    /// A contract of an instrument.
    /// @param code the instrument
    /// @param account whose contract
    /// @param compactId the contract
    /// @return an empty pointer in this edition
    boost::shared_ptr<ttservice::CStkCompactsV2>
    getCompatctByCode(const QString& code, boost::shared_ptr<CAccountData> account, std::string compactId);

    /// Asks the data center for the account and drops its answer.
    /// @param[in,out] first stays as it is
    /// @param[in,out] second stays as it is
    /// @param accountId the account
    /// @param compact the contract; may be empty
    void getAvailableNum(QString& first, QString& second, const std::string& accountId, const std::string&,
                         const std::string&, boost::shared_ptr<ttservice::CStkCompactsV2> compact, std::string);

    /// Would list the accounts to choose from.
    /// @param[in,out] names stays as it is
    /// @param[in,out] values stays as it is
    void getComBoDisplayAccounts(QStringList& names, QVector<QVariant>& values);

    /// Would remember what the rows show.
    void saveUIDataToMap();

    /// Would show what buying gives back.
    void setOptBuySecuRepayNum(const std::string&, const std::string&, const std::string&);

    /// Gives the rows the table's width.
    /// @param event Qt's
    void resizeEvent(QResizeEvent* event) override;

    /// Acts on 73 of row 726, the account: the unrepaid figure stands for all contracts again. Every event goes on to
    /// the toolkit base.
    /// @param event the event's number
    /// @param id the row
    /// @param value the index of the entry
    /// @param text the entry
    /// @param payload the entry's QVariant
    /// @return what the toolkit base answers
    bool handleEvent(int event, int id, int value, QString text, void* payload) override;

private:
    void setTexts(std::initializer_list<int> rows, const QString& text);
    void layRowsOut();
    bool sendAndStayAlive(int event, int value, void* payload);
    bool sendAccount(int value, const QVariant& account);

protected:
    int m_operationType = -1;                     ///< the operation shown
    WQ::CMultiParamsTable* m_table = nullptr;     ///< the rows
    QMap<int, QMap<int, QVariant>> m_savedValues; ///< by operation type, by row
    bool m_isFontScale = true;                    ///< the table follows the UI scale
    /// where contract data is refreshed from
    ttservice::ENVCompactBrushSource m_compactBrushSource = ttservice::COMPACT_BRUSH_SOURCE_DEFAULT;
    bool m_useAllCompacts = true; ///< the unrepaid figure stands for all contracts of the instrument
};

} // namespace TC
