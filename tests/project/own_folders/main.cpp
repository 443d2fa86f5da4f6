#include <KOVAVSFDataGrid>
#include <KOVAVSFDataGridLib/ado/Recordset.h>
#include <KOVAVSFDataGridLib/ado/automation/StreamObject.h>
#include <KOVAVSFDataGridLib/control/connection/BuildConnection.h>
#include <KOVAVSFDataGridLib/pages/PropertyPages.h>
#include <ado/Recordset.h>
#include <control/Panel.h>

#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    KOVAVSFDataGrid grid;
    const ADODB::Recordset recordset;
    const Host::Panel panel;
    if (recordset.State() != ADODB::adStateClosed || panel.recordset.records != 2 || grid.GetGridRowL() < 0)
        return 1;
    std::fprintf(stderr, "usage: own_folders\n");
    return 2;
}
