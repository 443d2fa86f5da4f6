#pragma once

#include "PropertyPage.h"

namespace KOVAVSFDataGridLib {

// Edits "SQLShow", the statement to show.
class KOVA_EXPORT SQLShow final : public PropertyPage
{
    Q_OBJECT

public:
    // Shows nothing until a control is selected.
    explicit SQLShow(QWidget *parent = nullptr);
};

} // namespace KOVAVSFDataGridLib
