#include "Measure.h"
#include "MillionRecords.h"

#include "ado/Recordset.h"
#include "session/find/CellSearch.h"

#include <algorithm>
#include <cstdio>

// The cost of searching 1,000,000 x 12 cells for a text, compared with a plain loop over the cells' texts.

using namespace KOVAVSFDataGridLib;

namespace {

struct Sought
{
    const char *text;
    TextMatcher::Case caseOf;
    TextMatcher::Extent extent;
    int column; // -1 for all
};

} // namespace

int main()
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    ADODB::Recordset recordset;
    openMillionRecords(recordset);
    const RecordRange all{1, recordset.RecordCount()};

    for (const Sought &sought : {
             Sought{"comma", TextMatcher::Case::Ignored, TextMatcher::Extent::Part, -1},
             Sought{"Nowhere", TextMatcher::Case::Exact, TextMatcher::Extent::Part, -1},
             Sought{"称99999", TextMatcher::Case::Ignored, TextMatcher::Extent::Part, -1},
             Sought{"999", TextMatcher::Case::Ignored, TextMatcher::Extent::Part, -1},
             Sought{"7000", TextMatcher::Case::Ignored, TextMatcher::Extent::Whole, -1},
             Sought{"名称999", TextMatcher::Case::Ignored, TextMatcher::Extent::Part, 3},
         }) {
        const QString text = QString::fromUtf8(sought.text);
        const Qt::CaseSensitivity caseOf =
            sought.caseOf == TextMatcher::Case::Exact ? Qt::CaseSensitive : Qt::CaseInsensitive;
        std::vector<CellSearch::Column> columns;
        for (int i = 0; i < recordset.Fields().Count(); ++i) {
            if (sought.column < 0 || sought.column == i)
                columns.push_back({i + 1, i, recordset.Fields().Item(i).Type(), {}});
        }
        qint64 found = 0;
        const double searched = measure([&] {
            CellSearch search(recordset, all, columns, {text, sought.caseOf, sought.extent});
            while (!search.isDone())
                search.addNextCells();
            found = search.count();
        });
        qint64 foundInTexts = 0;
        const double plain = measure(
            [&] {
                for (qint64 record = all.first; record <= all.last; ++record) {
                    for (const CellSearch::Column &column : columns) {
                        const QString cell = recordset.CellText(record, column.field);
                        foundInTexts += sought.extent == TextMatcher::Extent::Whole
                                            ? cell.compare(text, caseOf) == 0
                                            : cell.contains(text, caseOf);
                    }
                }
            },
            1);
        std::printf(
            "%-10s in %2d columns: %7ld found %s %8.1f ms, loop over the texts %8.1f ms, ratio %5.2f\n",
            sought.text, static_cast<int>(columns.size()), static_cast<long>(found),
            found == foundInTexts ? "      " : "(!)   ", searched, plain, searched / plain);
    }
    return 0;
}
