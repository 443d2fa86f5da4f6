#include "pages/RecordSource.h"

#include "pages/PageTexts.h"

#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

RecordSource::RecordSource(QWidget *parent)
    : PropertyPage(u"RecordSource"_s, u"txtRecordSource"_s, PageTexts::RecordSource,
                   PageTexts::RecordSourceHint, parent)
{
    setObjectName(u"RecordSource"_s);
    rows().addStretch();
}

} // namespace KOVAVSFDataGridLib
