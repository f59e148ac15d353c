#include "reference/toolkit/cells/ComboCell.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace WQ {

namespace {

bool isNumber(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Bool:
        return true;
    default:
        return false;
    }
}

// QVariant's own comparison converts, so that the text "5" would be the number 5, and "" the number 0.
bool isSame(const QVariant& left, const QVariant& right)
{
    const int type = left.userType();
    if (type == QMetaType::Int && right.userType() == type)
        return left.toInt() == right.toInt();
    if (isNumber(left) && isNumber(right))
        return left.toDouble() == right.toDouble();
    return left.isValid() && right.userType() == type && left == right;
}

} // namespace

ComboCell::ComboCell(int id, QString label, QStringList texts, QVector<QVariant> values, int currentIndex)
    : CellItem(CellKind::Combo, id, std::move(label))
    , m_texts(std::move(texts))
    , m_values(std::move(values))
    , m_current(currentIndex)
{
    if (m_current < 0 || m_current >= count())
        m_current = -1;
    else
        m_initial = m_values.at(m_current);
}

int ComboCell::count() const
{
    return std::min(m_texts.size(), m_values.size());
}

QString ComboCell::entryText(int index) const
{
    return index >= 0 && index < count() ? m_texts.at(index) : QString();
}

QVariant ComboCell::entryData(int index) const
{
    return index >= 0 && index < count() ? m_values.at(index) : QVariant();
}

bool ComboCell::setCurrentIndex(int index)
{
    const int valid = index >= 0 && index < count() ? index : -1;
    return std::exchange(m_current, valid) != valid;
}

int ComboCell::indexOfData(const QVariant& value) const
{
    for (int i = 0; i < count(); ++i) {
        if (isSame(m_values.at(i), value))
            return i;
    }
    return -1;
}

bool ComboCell::setData(const QVariant& value)
{
    const int index = indexOfData(value);
    return index >= 0 && setCurrentIndex(index);
}

bool ComboCell::setEntries(const QStringList& texts, const QVector<QVariant>& values, int currentIndex)
{
    const QString oldText = text();
    m_texts = texts;
    m_values = values;
    const bool moved = setCurrentIndex(currentIndex);
    return moved || oldText != text();
}

QString ComboCell::text() const
{
    return entryText(m_current);
}

bool ComboCell::hasChevron() const
{
    return true;
}

QVariant ComboCell::data() const
{
    return entryData(m_current);
}

double ComboCell::number() const
{
    const double value = data().toDouble();
    return std::isnan(value) ? 0 : value;
}

bool ComboCell::setNumber(double value)
{
    return setData(value);
}

bool ComboCell::setText(const QString& text)
{
    for (int i = 0; i < count(); ++i) {
        if (m_texts.at(i) == text)
            return setCurrentIndex(i);
    }
    return false;
}

} // namespace WQ
