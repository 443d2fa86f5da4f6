#pragma once

#include <QtCore/QString>

// The database of a fictitious trading company: customers, products with small pictures, 120,000 orders.
namespace SampleDatabase {

// The path of this user's sample database, which is created if it is missing or outdated. Several processes
// may call this at once. Throws std::runtime_error, with a text for the user in UTF-8, if it can't be
// created.
QString path();

QString defaultStatement();
QString defaultPartStatement();

} // namespace SampleDatabase
