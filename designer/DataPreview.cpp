#include "designer/DataPreview.h"

#include "designer/DesignerTexts.h"

#include <KOVAVSFDataGrid>

#include <QtCore/QVariant>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// In the order in which a host sets them: setting ConnectionString clears the statements.
constexpr const char *properties[] = {
    "BackColor",        "DataBackColor", "DataFont",       "UseModel",  "ShowModel", "DBType",   "TableType",
    "ConnectionString", "SQLShow",       "SQLPartDisplay", "SQLFilter", "SQLSort",   "PicField", "ErrorHint"};

} // namespace

DataPreview::DataPreview(const QWidget &designed)
    : QDialog(designed.window()), m_grid(new KOVAVSFDataGrid(this))
{
    setObjectName(u"DataPreview"_s);
    setWindowTitle(DesignerTexts::PreviewTitle.arg(designed.objectName()));
    setModal(true); // from the start, also while the data is loading
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_grid);

    m_grid->setObjectName(designed.objectName());
    m_grid->PutUserMode(false); // for UseModel, which only a form editor may set
    for (const char *property : properties)
        m_grid->setProperty(property, designed.property(property));
    m_grid->PutUserMode(true);
    resize(m_grid->sizeHint().expandedTo(designed.size()));
}

void DataPreview::run()
{
    show(); // so that a long load can show its progress
    if (m_grid->IsLoadData())
        exec();
    m_grid->ClearObject();
}

} // namespace KOVAVSFDataGridLib
