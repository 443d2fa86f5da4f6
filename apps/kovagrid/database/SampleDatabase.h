#pragma once

#include <QtCore/QString>

// The database of a made-up trading company: customers, products with small pictures, and 120,000 orders.
namespace SampleDatabase {

// The path of the sample database of this user, which is made when it is missing or of an older kind.
// Several processes may ask at once. Throws std::runtime_error, with a text for the user in UTF-8, when it
// can't be made.
QString path();

QString defaultStatement();
QString defaultPartStatement();

} // namespace SampleDatabase
