#pragma once

#include <QtWidgets/QDialog>

class KOVAVSFDataGrid;

namespace KOVAVSFDataGridLib {

// A window with a grid that runs, made like one that is being designed. Only here is a database touched.
class DataPreview final : public QDialog
{
    Q_OBJECT

public:
    explicit DataPreview(const QWidget &designed);

    // Loads the data and shows them until the window is closed. A load that fails has said why.
    void run();

private:
    KOVAVSFDataGrid *m_grid;
};

} // namespace KOVAVSFDataGridLib
