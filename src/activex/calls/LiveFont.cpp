#include "activex/calls/LiveFont.h"

#include "activex/calls/OleFont.h"
#include "activex/server/ComObject.h"

#include <KOVAVSFDataGrid>

#include <olectl.h>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

// Receives the changes of one font object. A client can keep that object longer than the control lives.
class FontListener final : public ComObject<IPropertyNotifySink>
{
public:
    FontListener(LiveFont &owner, IUnknown &font) : m_owner(&owner), m_font(font) {}

    void forget() { m_owner = nullptr; }

    STDMETHODIMP OnChanged(DISPID) override
    {
        // The change can make a client set another font.
        const ComPtr<IUnknown> alive(static_cast<IPropertyNotifySink *>(this));
        return m_owner ? m_owner->read(&m_font) : S_OK;
    }
    STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; }

private:
    LiveFont *m_owner;
    IUnknown &m_font; // no reference counted: it owns this object
};

LiveFont::LiveFont(KOVAVSFDataGrid &grid) : m_grid(grid) {}

LiveFont::~LiveFont()
{
    disconnect();
}

HRESULT LiveFont::get(IDispatch **font)
{
    // The grid's font can also be changed without this object.
    if (!m_font || m_grid.DataFont() != m_known) {
        ComPtr<IDispatch> made;
        const HRESULT outcome = fontObject(m_grid.DataFont(), &made);
        if (FAILED(outcome))
            return outcome;
        connect(made.Get());
    }
    return m_font.CopyTo(font);
}

HRESULT LiveFont::put(IUnknown *font)
{
    const HRESULT outcome = read(font);
    // Even an object without notifications has been read now.
    if (SUCCEEDED(outcome))
        connect(font);
    return outcome;
}

HRESULT LiveFont::read(IUnknown *font)
{
    QFont described;
    const HRESULT outcome = fontFromObject(font, &described);
    if (FAILED(outcome))
        return outcome;
    m_grid.PutDataFont(described);
    m_known = m_grid.DataFont();
    return S_OK;
}

HRESULT LiveFont::connect(IUnknown *font)
{
    disconnect();
    m_known = m_grid.DataFont();
    HRESULT outcome = font->QueryInterface(IID_PPV_ARGS(&m_font));
    ComPtr<IConnectionPointContainer> container;
    if (SUCCEEDED(outcome))
        outcome = font->QueryInterface(IID_PPV_ARGS(&container));
    if (SUCCEEDED(outcome))
        outcome = container->FindConnectionPoint(IID_IPropertyNotifySink, &m_point);
    if (FAILED(outcome))
        return outcome;
    auto *listener = new FontListener(*this, *font);
    m_listener = listener;
    listener->Release(); // the pointer holds its own reference
    return m_point->Advise(listener, &m_cookie);
}

void LiveFont::disconnect()
{
    if (m_listener)
        m_listener->forget();
    if (m_point && m_cookie != 0)
        m_point->Unadvise(m_cookie);
    m_cookie = 0;
    m_listener.Reset();
    m_point.Reset();
    m_font.Reset();
}

} // namespace KOVAVSFDataGridLib::ActiveX
