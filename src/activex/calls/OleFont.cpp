#include "activex/calls/OleFont.h"

#include "activex/calls/Variants.h"

#include <QtGui/QFont>
#include <QtGui/QFontInfo>

#include <cmath>
#include <ocidl.h>
#include <olectl.h>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

HRESULT fontObject(const QFont &font, IDispatch **object)
{
    const QString family = QFontInfo(font).family();
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = const_cast<LPOLESTR>(reinterpret_cast<const OLECHAR *>(family.utf16()));
    // A currency is an integer in units of 1/10000.
    description.cySize.int64 = std::llround(QFontInfo(font).pointSizeF() * 10000);
    description.sWeight = static_cast<SHORT>(font.weight());
    description.sCharset = DEFAULT_CHARSET;
    description.fItalic = font.italic();
    description.fUnderline = font.underline();
    description.fStrikethrough = font.strikeOut();
    return OleCreateFontIndirect(&description, IID_IFontDisp, reinterpret_cast<void **>(object));
}

HRESULT fontFromObject(IUnknown *object, QFont *font)
{
    ComPtr<IFont> source;
    if (!object || FAILED(object->QueryInterface(IID_PPV_ARGS(&source))))
        return DISP_E_TYPEMISMATCH;
    BSTR name = nullptr;
    CY size{};
    SHORT weight = FW_NORMAL;
    BOOL italic = FALSE;
    BOOL underline = FALSE;
    BOOL strikeOut = FALSE;
    if (FAILED(source->get_Name(&name)))
        return DISP_E_TYPEMISMATCH;
    const QString family = toQString(name ? name : L"");
    SysFreeString(name);
    if (FAILED(source->get_Size(&size)) || FAILED(source->get_Weight(&weight)) ||
        FAILED(source->get_Italic(&italic)) || FAILED(source->get_Underline(&underline)) ||
        FAILED(source->get_Strikethrough(&strikeOut)))
        return DISP_E_TYPEMISMATCH;

    *font = QFont(family);
    if (size.int64 > 0)
        font->setPointSizeF(static_cast<qreal>(size.int64) / 10000);
    font->setWeight(static_cast<QFont::Weight>(weight));
    font->setItalic(italic);
    font->setUnderline(underline);
    font->setStrikeOut(strikeOut);
    return S_OK;
}

} // namespace KOVAVSFDataGridLib::ActiveX
