#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QCollator>

namespace ADODB {

// The sort order of a file's texts, by the language of the file: Chinese by pronunciation, accented letters
// next to their base letters. Case-insensitive.
class AccessOrder
{
public:
    // The Windows language ID. Languages that use the general sort order have no name here.
    explicit AccessOrder(quint16 language);

    // Negative, zero or positive; zero only if AccessCollation::compareTexts() returns zero. UTF-8.
    int compare(QByteArrayView a, QByteArrayView b) const;

private:
    QCollator m_collator;
};

} // namespace ADODB
