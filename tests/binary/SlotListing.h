#pragma once

#include "binary/VirtualTables.h"

#include <QMap>

/// The typed listing of slots: for each class its bases, what it adds and what it overrides.
class SlotListing
{
public:
    explicit SlotListing(const QString& text);

    /// Lines that are not understood, or name a class before it is listed; empty for a sound listing.
    QStringList errors() const;

    /// The library's own classes, in order.
    QStringList ownClasses() const;

    QStringList basesOf(const QString& className) const;

    /// The tables that the class has according to the listing.
    VirtualTables tablesOf(const QString& className) const;

private:
    struct Slot
    {
        QString operation;
        QString implementer; ///< empty: nobody
    };
    using Tables = QVector<QVector<Slot>>;
    struct Class
    {
        QStringList bases;
        Tables tables;
    };

    void take(const QString& word, const QString& rest);
    void inherit(const QStringList& bases);
    void add(const QString& operation, const QString& implementer);
    void fill(const QString& operation);

    QMap<QString, Class> m_classes;
    QStringList m_order;
    QString m_name; ///< the class whose lines are being read
    QStringList m_errors;
};
