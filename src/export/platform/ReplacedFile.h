#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// Created before a file is replaced by another one, and destroyed after it: the system takes back the old
// file's place in a thread of its own, instead of while the new one is put there. For a large file that takes
// as long as a fifth of writing it. Where the system doesn't support that, it is done at once.
class ReplacedFile
{
public:
    explicit ReplacedFile(const QString &file);
    ~ReplacedFile();
    Q_DISABLE_COPY_MOVE(ReplacedFile)

private:
    const int m_handle; // -1 without one
};

} // namespace KOVAVSFDataGridLib
