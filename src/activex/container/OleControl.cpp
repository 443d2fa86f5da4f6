#include "activex/container/OleControl.h"

#include "activex/GridControl.h"
#include "activex/container/Ambients.h"

#include <KOVAVSFDataGrid>

#include <QtGui/QFont>
#include <QtGui/QPalette>

#include <olectl.h>

namespace KOVAVSFDataGridLib::ActiveX {

using namespace Qt::StringLiterals;

namespace {

// All controls share the language, so a control that is added later does not change what the host may have
// chosen meanwhile. Of other languages there are no texts.
void useLanguageOf(LCID locale, KOVAVSFDataGrid &grid, bool isChanged)
{
    static bool isChosen = false;
    if (isChosen && !isChanged)
        return;
    isChosen = true;
    const WORD language = PRIMARYLANGID(LANGIDFROMLCID(locale));
    if (language == LANG_CHINESE)
        grid.PutLanguage(u"zh-CN"_s);
    else if (language == LANG_ENGLISH)
        grid.PutLanguage(u"en"_s);
}

} // namespace

OleControl::OleControl(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP OleControl::GetControlInfo(CONTROLINFO *info)
{
    if (!info)
        return E_POINTER;
    *info = {};
    info->cb = sizeof *info;
    return S_OK;
}

STDMETHODIMP OleControl::OnMnemonic(MSG *)
{
    return S_OK;
}

STDMETHODIMP OleControl::OnAmbientPropertyChange(DISPID id)
{
    readAmbients(id);
    return S_OK;
}

STDMETHODIMP OleControl::FreezeEvents(BOOL freeze)
{
    m_control.connectionPoints().events().freeze(freeze != FALSE);
    return S_OK;
}

void OleControl::readAmbients(DISPID id)
{
    const Ambients ambients(m_control.oleObject().site());
    if (!ambients.areKnown())
        return;
    KOVAVSFDataGrid &grid = m_control.grid();
    const auto isMeant = [id](DISPID property) { return id == DISPID_UNKNOWN || id == property; };
    // A container that does not know the property has no design mode.
    if (isMeant(DISPID_AMBIENT_USERMODE))
        grid.PutUserMode(ambients.value<bool>(DISPID_AMBIENT_USERMODE).value_or(true));
    if (isMeant(DISPID_AMBIENT_UIDEAD))
        m_control.inPlace().window().setResponsive(
            !ambients.value<bool>(DISPID_AMBIENT_UIDEAD).value_or(false));
    if (isMeant(DISPID_AMBIENT_FONT)) {
        if (const auto font = ambients.value<QFont>(DISPID_AMBIENT_FONT))
            grid.setFont(*font);
    }
    if (isMeant(DISPID_AMBIENT_FORECOLOR)) {
        if (const auto colour = ambients.value<QColor>(DISPID_AMBIENT_FORECOLOR)) {
            QPalette palette = grid.palette();
            palette.setColor(QPalette::WindowText, *colour);
            grid.setPalette(palette);
        }
    }
    if (isMeant(DISPID_AMBIENT_RIGHTTOLEFT)) {
        if (const auto isReversed = ambients.value<bool>(DISPID_AMBIENT_RIGHTTOLEFT))
            grid.setLayoutDirection(*isReversed ? Qt::RightToLeft : Qt::LeftToRight);
    }
    if (isMeant(DISPID_AMBIENT_LOCALEID)) {
        if (const auto locale = ambients.value<int>(DISPID_AMBIENT_LOCALEID))
            useLanguageOf(static_cast<LCID>(*locale), grid, id != DISPID_UNKNOWN);
    }
}

void OleControl::readBackColor()
{
    const Ambients ambients(m_control.oleObject().site());
    if (const auto colour = ambients.value<qlonglong>(DISPID_AMBIENT_BACKCOLOR))
        m_control.persistence().putBackColor(static_cast<quint32>(*colour));
}

} // namespace KOVAVSFDataGridLib::ActiveX
