#pragma once

#include <QtWidgets/QDialog>

class KOVAVSFDataGrid;

namespace KOVAVSFDataGridLib {

// A window with a running grid that has the properties of the designed one. Only this window uses a database.
class DataPreview final : public QDialog
{
    Q_OBJECT

public:
    explicit DataPreview(const QWidget &designed);

    // Loads the data and shows it until the window is closed. If the load fails, the grid shows the reason.
    void run();

private:
    KOVAVSFDataGrid *m_grid;
};

} // namespace KOVAVSFDataGridLib
