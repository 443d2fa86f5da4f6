#pragma once

#include <QtCore/QString>

// A text of the made-up shop in the language of the pictures: statements, names and values are written in
// Chinese, and in English each Chinese word becomes an English one.
QString sample(QString text);
