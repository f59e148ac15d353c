#include "binary/SlotListing.h"

namespace {

const QString kDestructor = QStringLiteral("~");

} // namespace

SlotListing::SlotListing(const QString& text)
{
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QString told = line.trimmed();
        if (!told.isEmpty() && !told.startsWith(QLatin1Char('#')))
            take(told.section(QLatin1Char(' '), 0, 0), told.section(QLatin1Char(' '), 1));
    }
}

void SlotListing::take(const QString& word, const QString& rest)
{
    if (word == QLatin1String("class")) {
        m_name = rest;
        m_order.append(rest);
        m_classes.insert(rest, {{}, {{}}});
    } else if (word == QLatin1String("bases")) {
        inherit(rest.split(QLatin1Char(' ')));
    } else if (word == QLatin1String("adds")) {
        add(rest, m_name);
    } else if (word == QLatin1String("pure")) {
        add(rest, QString());
    } else if (word == QLatin1String("overrides")) {
        fill(rest);
    } else {
        m_errors.append(QStringLiteral("%1: %2 is no word of the listing").arg(m_name, word));
    }
}

// Every class has a destructor of its own, which it puts into every table.
void SlotListing::inherit(const QStringList& bases)
{
    Class& described = m_classes[m_name];
    described.bases = bases;
    described.tables.clear();
    for (const QString& base : bases) {
        if (!m_classes.contains(base))
            m_errors.append(QStringLiteral("%1: its base %2 is not listed before it").arg(m_name, base));
        described.tables += m_classes.value(base).tables;
    }
    fill(kDestructor);
}

void SlotListing::add(const QString& operation, const QString& implementer)
{
    Tables& tables = m_classes[m_name].tables;
    if (tables.isEmpty())
        return;
    tables.first().append({operation, implementer});
    if (operation == kDestructor)
        tables.first().append({operation, implementer});
}

void SlotListing::fill(const QString& operation)
{
    bool isKnown = false;
    for (QVector<Slot>& table : m_classes[m_name].tables) {
        for (Slot& slot : table) {
            if (slot.operation != operation)
                continue;
            slot.implementer = m_name;
            isKnown = true;
        }
    }
    if (!isKnown)
        m_errors.append(QStringLiteral("%1: no base has a slot %2").arg(m_name, operation));
}

QStringList SlotListing::errors() const
{
    return m_errors;
}

QStringList SlotListing::ownClasses() const
{
    return m_order.filter(QStringLiteral("TC::"));
}

QStringList SlotListing::basesOf(const QString& className) const
{
    return m_classes.value(className).bases;
}

VirtualTables SlotListing::tablesOf(const QString& className) const
{
    VirtualTables texts;
    for (const QVector<Slot>& table : m_classes.value(className).tables) {
        texts.append(QStringList());
        for (const Slot& slot : table)
            texts.last().append(slot.implementer.isEmpty() ? pureSlot() : slotText(slot.implementer, slot.operation));
    }
    return texts;
}
