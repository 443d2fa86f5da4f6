#pragma once

#include "PropertyPage.h"

namespace KOVAVSFDataGridLib {

// Shows "RecordSource", the statement that the last load opened. On the grid it is read-only: applying
// another text is refused with a message, and the text stays for the developer to copy.
class KOVA_EXPORT RecordSource final : public PropertyPage
{
    Q_OBJECT

public:
    // Shows nothing until a control is selected.
    explicit RecordSource(QWidget *parent = nullptr);
};

} // namespace KOVAVSFDataGridLib
