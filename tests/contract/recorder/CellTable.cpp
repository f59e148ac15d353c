#include "contract/recorder/CallLog.h"
#include "contract/recorder/Cells.h"
#include "contract/recorder/Watch.h"

#include <WQ/CCheckParamUnitCellDelegate.h>
#include <WQ/CComboBoxDelegate.h>
#include <WQ/CMultiParamsTable.h>

#include <QStandardItemModel>

// The cell table: its making and the adding of cells.
namespace WQ {

using recorder::Do;
using recorder::Id;
using recorder::record;

namespace {

constexpr int kColumns = 2;

} // namespace

CMultiParamsTable::CMultiParamsTable(QWidget* parent, bool fontScale)
    : CEventWidgetT<QTableView>(parent)
    , d(std::make_unique<CMultiParamsTablePrivate>())
{
    setModel(new QStandardItemModel(0, kColumns, this));
    setFocusPolicy(Qt::NoFocus);
    record(Do, QStringLiteral("new CMultiParamsTable"), static_cast<const QWidget*>(parent), fontScale);
    recorder::watch(this, QStringLiteral("table"));
}

CMultiParamsTable::~CMultiParamsTable() = default;

int CMultiParamsTable::addComboBox(int id, QString label, QStringList& texts, QVector<QVariant>& values,
                                   int currentIndex, bool constant, QFlags<Qt::AlignmentFlag> labelAlignment,
                                   QFlags<Qt::AlignmentFlag> valueAlignment)
{
    record(Do, QStringLiteral("table.addComboBox"), Id{id}, label, texts, values, currentIndex, constant,
           labelAlignment, valueAlignment);
    auto cell = newCell(id, label);
    cell->texts = texts;
    cell->values = values;
    cell->index = currentIndex;
    return d->add<CComboBoxDelegate>(std::move(cell));
}

int CMultiParamsTable::addParamCell(int id, QString label, int valueType, double min, double max, double step,
                                    QString unit, double value, int constant)
{
    record(Do, QStringLiteral("table.addParamCell"), Id{id}, label, valueType, min, max, step, unit, value, constant);
    auto cell = newCell(id, label);
    cell->units = {{unit, valueType, min, max, step}};
    cell->number = value;
    return d->add<CParamCellDelegate>(std::move(cell));
}

int CMultiParamsTable::addParamUnitCell(int id, QString label, QList<CParamCellUnitInfo> units, double value,
                                        double constant)
{
    record(Do, QStringLiteral("table.addParamUnitCell"), Id{id}, label, units, value, constant);
    auto cell = newCell(id, label);
    cell->units = units;
    cell->number = value;
    return d->add<CParamCellDelegate>(std::move(cell));
}

int CMultiParamsTable::addCheckParamUnitCell(int id, QString label, QString checkText, bool checked,
                                             QList<CParamCellUnitInfo> units, double value, double constant)
{
    record(Do, QStringLiteral("table.addCheckParamUnitCell"), Id{id}, label, checkText, checked, units, value,
           constant);
    auto cell = newCell(id, label);
    cell->units = units;
    cell->number = value;
    return d->add<CCheckParamUnitCellDelegate>(std::move(cell));
}

int CMultiParamsTable::addRangeCell(int id, QString label, int valueType, double min, double max, double low,
                                    double high, double step, QString unit, double constant, int places,
                                    QString separator, bool flag)
{
    record(Do, QStringLiteral("table.addRangeCell"), Id{id}, label, valueType, min, max, low, high, step, unit,
           constant, places, separator, flag);
    return d->add<CMultiParamsTableItem>(newCell(id, label));
}

int CMultiParamsTable::addTimePeriod(int id, QString label, QTime& start, QTime& end)
{
    record(Do, QStringLiteral("table.addTimePeriod"), Id{id}, label, start, end);
    return d->add<CMultiParamsTableItem>(newCell(id, label));
}

int CMultiParamsTable::addLineEdit(int id, QString label, QString text, bool validated, QString second)
{
    record(Do, QStringLiteral("table.addLineEdit"), Id{id}, label, text, validated, second);
    auto cell = newCell(id, label);
    cell->text = validated ? second : text;
    return d->add<CMultiParamsTableItem>(std::move(cell));
}

} // namespace WQ
