#pragma once

#include "reference/toolkit/cells/CellItem.h"

#include <QStringList>
#include <QVector>

namespace WQ {

/// A choice among entries: entry i shows texts[i] and carries values[i]; of unequal lists the shorter counts.
class WQ_EXPORT ComboCell : public CellItem
{
public:
    ComboCell(int id, QString label, QStringList texts, QVector<QVariant> values, int currentIndex);

    int count() const;
    QString entryText(int index) const;  ///< empty outside the list
    QVariant entryData(int index) const; ///< invalid outside the list

    /// -1 when none is chosen.
    int currentIndex() const
    {
        return m_current;
    }

    /// The value it was made with; invalid when none was chosen.
    const QVariant& initialData() const
    {
        return m_initial;
    }

    /// An index outside the list chooses none.
    bool setCurrentIndex(int index);

    /// The first entry that carries @p value, -1 when none does. Numbers are compared as numbers, texts as texts.
    int indexOfData(const QVariant& value) const;

    /// Chooses the entry that carries @p value; an unknown value keeps the choice.
    bool setData(const QVariant& value);

    /// Replaces the entries; an index outside the list chooses none.
    bool setEntries(const QStringList& texts, const QVector<QVariant>& values, int currentIndex);

    QString text() const override;
    bool hasChevron() const override;
    QVariant data() const override;
    double number() const override;
    bool setNumber(double value) override;
    bool setText(const QString& text) override;

private:
    // Shared with every other table that shows the same entries.
    QStringList m_texts;
    QVector<QVariant> m_values;
    QVariant m_initial;
    int m_current;
};

} // namespace WQ
