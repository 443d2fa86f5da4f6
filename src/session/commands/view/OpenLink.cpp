#include "ado/Recordset.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/pages/Pages.h"
#include "session/records/LinkText.h"

// Opens the web or mail address in the current cell.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QUrl currentLink(Session &session)
{
    const int row = session.window().Row();
    const int col = session.window().currentCol();
    if (row < 1 || col < 1 || !session.result().hasRecords())
        return {};
    return linkIn(session.result().recordset()->CellText(session.pages().recordOfRow(row), col - 1));
}

const Command::Registration openLinkCommand({
    .key = u"OpenLink"_s,
    .shortcut = u"Ctrl+F3"_s,
    .menu = {32, Command::tr("打开链接(&L)")},
    .isInViewer = true,
    .viewerMenu = {21, Command::tr("打开链接(&L)")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run =
        [](Session &session) {
            const QUrl link = currentLink(session);
            if (link.isValid())
                session.window().openLink(link);
            else
                session.window().showNote(SessionMessages::NoLink);
        },
});

} // namespace

} // namespace KOVAVSFDataGridLib
