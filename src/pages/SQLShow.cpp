#include "pages/SQLShow.h"

#include "pages/PageTexts.h"

#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

SQLShow::SQLShow(QWidget *parent)
    : PropertyPage(u"SQLShow"_s, u"txtSQLShow"_s, PageTexts::SqlShow, PageTexts::SqlShowHint, parent)
{
    setObjectName(u"SQLShow"_s);
    rows().addStretch();
}

} // namespace KOVAVSFDataGridLib
