#pragma once

#include <QtCore/QString>

// The database of a made-up trading company: customers, products with small pictures, and 120,000 orders.
namespace SampleDatabase {

// The path of the sample database of this user, which is made when it is missing or of an older kind.
// Throws std::runtime_error when it can't be written.
QString path();

// Makes it as a new file; a file of that name is replaced.
void create(const QString &fileName);

QString defaultStatement();
QString defaultPartStatement();
QString pictureField();

} // namespace SampleDatabase
