#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

// What the sample database is made of, in one language. Equal numbers of words make the same records in all
// languages.
struct SampleWords
{
    struct Product
    {
        QString name;
        QString category;
        int cents;
    };

    QString fileName;
    QString schema;                      // a resource
    QString customers, products, orders; // names of tables
    QString statement, partStatement;

    QString customerName; // of a city, a company and a trade
    QString contactName;  // of a surname and a given name
    QStringList cities, companies, trades, surnames, givenNames, notes;
    QList<Product> assortment;

    static const SampleWords &inLanguage(const QString &language);
};
