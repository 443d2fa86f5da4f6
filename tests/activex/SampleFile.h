#pragma once

#include <string>

// A small SQLite database in the temporary folder: table people (id, name, born, photo), three rows. Every
// call creates it again and returns the connection string.
std::wstring sampleConnection();
