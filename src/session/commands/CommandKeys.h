#pragma once

#include <QtCore/QString>

// The keys of the commands that other code uses. A button's action is found by its key.
namespace KOVAVSFDataGridLib::CommandKeys {

using namespace Qt::StringLiterals;

inline const QString All = u"All"_s;
inline const QString Part = u"Part"_s;
inline const QString SelField = u"SelField"_s;
inline const QString SingleRecord = u"SingleRecord"_s;
inline const QString PreviousRecord = u"PreviousRecord"_s;
inline const QString NextRecord = u"NextRecord"_s;
inline const QString AddRecord = u"AddRecord"_s;
inline const QString AllRecord = u"AllRecord"_s;
inline const QString Filter = u"Filter"_s;
inline const QString FromResult = u"FromResult"_s;
inline const QString CellFilter = u"CellFilter"_s;
inline const QString ShowValue = u"ShowValue"_s;
inline const QString Sort = u"Sort"_s;
inline const QString ToPreview = u"ToPreview"_s;
inline const QString Forward = u"Forward"_s;
inline const QString ToFullTable = u"ToFullTable"_s;

} // namespace KOVAVSFDataGridLib::CommandKeys
