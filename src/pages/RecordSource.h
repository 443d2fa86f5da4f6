#pragma once

#include "PropertyPage.h"

namespace KOVAVSFDataGridLib {

// Shows "RecordSource", the statement that the last load opened. The grid's property is read-only: applying
// another text is refused with a message box, and the text stays in the page for copying.
class KOVA_EXPORT RecordSource final : public PropertyPage
{
    Q_OBJECT

public:
    // Shows nothing until a control is selected.
    explicit RecordSource(QWidget *parent = nullptr);
};

} // namespace KOVAVSFDataGridLib
