#pragma once

#include <QtCore/QString>

// The database of a fictitious trading company: customers, products with small pictures, 120,000 orders.
namespace SampleDatabase {

struct Sample
{
    QString path;
    QString statement;     // its orders
    QString partStatement; // and the fields of them that are shown first
};

// This user's sample database with names and values in a language ("en", otherwise Chinese). It is created if
// it is missing or outdated; several processes may call this at once. Throws std::runtime_error, with a text
// for the user in UTF-8, if it can't be created.
Sample inLanguage(const QString &language);

} // namespace SampleDatabase
