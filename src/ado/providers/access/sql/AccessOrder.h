#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QCollator>

namespace ADODB {

// The order in which a file's texts are sorted: that of the language the file was made for, Chinese by its
// pronunciation, with letters that bear marks beside those that don't. Letter case does not count.
class AccessOrder
{
public:
    // The Windows number of a language. Those whose letters stand in the general order have no name here.
    explicit AccessOrder(quint16 language);

    // Negative, zero or positive; zero only where AccessCollation::compareTexts() says so. UTF-8.
    int compare(QByteArrayView a, QByteArrayView b) const;

private:
    QCollator m_collator;
};

} // namespace ADODB
