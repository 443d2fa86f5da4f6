#pragma once

#include "../KovaExport.h"

#include <QtWidgets/QDialog>

namespace KOVAVSFDataGridLib {

class PropertyPage;

// A window around one property page: OK and Apply apply it, Cancel leaves what was not applied.
class KOVA_EXPORT PageDialog final : public QDialog
{
    Q_OBJECT

public:
    // Takes the page over.
    explicit PageDialog(PropertyPage *page, QWidget *parent = nullptr);

    // Applies first; the window stays open when that was refused.
    void accept() override;

private:
    PropertyPage *m_page;
};

} // namespace KOVAVSFDataGridLib
