#pragma once

#include "../KovaExport.h"

#include <QtWidgets/QDialog>

namespace KOVAVSFDataGridLib {

class PropertyPage;

// A window around one property page. OK and Apply apply its changes; Cancel discards changes that were not
// applied.
class KOVA_EXPORT PageDialog final : public QDialog
{
    Q_OBJECT

public:
    // Takes ownership of the page.
    explicit PageDialog(PropertyPage *page, QWidget *parent = nullptr);

    // Applies the changes first. The window stays open if that fails.
    void accept() override;

private:
    PropertyPage *m_page;
};

} // namespace KOVAVSFDataGridLib
