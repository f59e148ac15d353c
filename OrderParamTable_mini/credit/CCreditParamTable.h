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
/// titled and measured by the operation type. It reports changes of account and code under the ID 725 with events 73
/// and 1083.
///
/// In this edition accounts, contracts and available quantities have fixed answers.
class ORDERPARAMTABLE_EXPORT CCreditParamTable : public WQ::CBaseWidget
{
public:
    explicit CCreditParamTable(QWidget* parent = nullptr);
    ~CCreditParamTable() override;

    /// The height that the shown rows need, in pixels.
    int realHeight();

    /// Takes the sizes of the current UI scale, unless setIsFontScale(false). Only the owner calls it.
    void handleScaleChanged();
    void setIsFontScale(bool isFontScale);
    void setCompactBrushSourceType(ttservice::ENVCompactBrushSource source);

    /// Rebuilds the account list (empty in this edition) and chooses the remembered account; sends 73 when one is
    /// chosen.
    void refreshAccounts();

    /// Chooses the account and sends 73 with its ID, offered or not.
    void setSelectAccount(const std::string& accountId);

    /// The data of the chosen account; empty when none is.
    QString getSelectAccount();

    /// The specified contract code.
    QString getCurrentCode();

    /// Always empty in this edition.
    boost::shared_ptr<ttservice::CStkCompactsV2> getDefaultCompact(const QString& code);

    /// Changes nothing and answers true in this edition: the figures are up to date.
    bool refreshAvailableNum(const QString& code, bool refresh, std::string compactId);

    /// The unrepaid figure as a number: of all contracts for an empty @p compactId, else 0.0.
    double getUnRepayNum(std::string compactId);

    /// The unrepaid figure of all contracts of the instrument as text: shares for operations 22 and 23, yuan with two
    /// decimals for 24, 25 and 1021, "0" for others and without an account.
    QString getAllUnrepayValue(const QString& code);

    /// The unrepaid figure of the default contract as text; "0" without one.
    QString getDefaultUnrepayValue(const QString& code);

    /// What may be repaid today, in shares, as text; "0" without an account.
    QString getTodayAvailableNum(const QString& code);

    /// Shows @p value as the unrepaid figure.
    void refreshUnrepayValue(const QString& value);

    /// A contract was chosen: empties the code, shows @p unrepayValue (with @p showZero "0"). An empty contract, or one
    /// without data, changes nothing.
    void setStkCompacts(boost::shared_ptr<ttservice::CStkCompactsV2> compact, QString unrepayValue, bool showZero);

    /// An instrument code was entered: shows it and, without a contract ID, the unrepaid and repayable figures.
    void setStockCode(const QString& code, std::string compactId, bool useDefault);

    /// The state as text: operation type "+" groups of an operation type "-" row "=" value. No escaping.
    QString param() const;

    /// Merges a parameter string into the remembered values, takes its operation type and lays the rows out. A text of
    /// less than two "+" parts changes nothing; groups of less than four entries and entries without "=" are skipped;
    /// what is not a number reads as 0. Sends 1083 (when no code is remembered) and 73.
    void setParam(QString text);

    /// @name Inert in this edition
    /// @{
    void doStockUnitChange();
    void setOperationType(ttservice::EOperationType operationType, bool);
    /// @}

protected:
    void createUi();
    void resizeTable();
    void resetColumnWidth();
    void refreshUIData();
    void setFixCodeText(const QString& code, bool setCode, bool refresh, std::string compactId);
    void fixCodeChanged(const QString& code);
    ttservice::ENVCompactType getCurrentCompactType(ttservice::EOperationType operationType);
    double getCurrentNumUnit();
    boost::shared_ptr<ttservice::CStkCompactsV2>
    getCompatctByCode(const QString& code, boost::shared_ptr<CAccountData> account, std::string compactId);
    void getAvailableNum(QString& first, QString& second, const std::string& accountId, const std::string&,
                         const std::string&, boost::shared_ptr<ttservice::CStkCompactsV2> compact, std::string);
    void getComBoDisplayAccounts(QStringList& names, QVector<QVariant>& values);
    void saveUIDataToMap();
    void setOptBuySecuRepayNum(const std::string&, const std::string&, const std::string&);

    void resizeEvent(QResizeEvent* event) override;
    bool handleEvent(int event, int id, int value, QString text, void* payload) override;

private:
    void setTexts(std::initializer_list<int> rows, const QString& text);
    void layRowsOut();
    bool sendAndStayAlive(int event, int value, void* payload);
    bool sendAccount(int value, const QVariant& account);

protected:
    int m_operationType = -1;
    WQ::CMultiParamsTable* m_table = nullptr;
    QMap<int, QMap<int, QVariant>> m_savedValues; ///< by operation type, by row
    bool m_isFontScale = true;
    ttservice::ENVCompactBrushSource m_compactBrushSource = ttservice::COMPACT_BRUSH_SOURCE_DEFAULT;
    bool m_useAllCompacts = true; ///< the unrepaid figure stands for all contracts of the instrument
};

} // namespace TC
