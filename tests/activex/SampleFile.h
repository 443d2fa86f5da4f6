#pragma once

#include <string>

// A small SQLite database in the temporary folder: table people (id, name, born, photo), three rows. Made
// anew by every call; returns the connection string.
std::wstring sampleConnection();
