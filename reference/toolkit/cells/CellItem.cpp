#include "reference/toolkit/cells/CellItem.h"

#include <utility>

namespace WQ {

CellItem::CellItem(CellKind kind, int id, QString label)
    : m_label(std::move(label))
    , m_id(id)
    , m_kind(kind)
{
}

CellItem::~CellItem() = default;

bool CellItem::setLabel(QString label)
{
    if (label == m_label)
        return false;
    m_label = std::move(label);
    return true;
}

bool CellItem::setHidden(bool hidden)
{
    return std::exchange(m_hidden, hidden) != hidden;
}

bool CellItem::setEditable(bool editable)
{
    return std::exchange(m_editable, editable) != editable;
}

QString CellItem::displayText() const
{
    return text();
}

QString CellItem::unit() const
{
    return QString();
}

bool CellItem::hasChevron() const
{
    return false;
}

QVariant CellItem::data() const
{
    return text();
}

double CellItem::number() const
{
    return 0;
}

bool CellItem::setNumber(double)
{
    return false;
}

bool CellItem::setText(const QString&)
{
    return false;
}

QString CellItem::checkText() const
{
    return QString();
}

bool CellItem::isChecked() const
{
    return false;
}

bool CellItem::setChecked(bool)
{
    return false;
}

double CellItem::minimum() const
{
    return 0;
}

double CellItem::maximum() const
{
    return 0;
}

bool CellItem::setLimits(double, double)
{
    return false;
}

bool CellItem::setUnit(const QString&)
{
    return false;
}

bool CellItem::setUnit(const QString&, double, double, double, bool)
{
    return false;
}

bool CellItem::setTick(const QString&, double)
{
    return false;
}

QString CellItem::rangeText() const
{
    return QString();
}

QString CellItem::offGridText() const
{
    return QString();
}

} // namespace WQ
