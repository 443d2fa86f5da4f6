#pragma once

#include <QtGui/QFont>

#include <ocidl.h>
#include <wrl/client.h>

class KOVAVSFDataGrid;

namespace KOVAVSFDataGridLib::ActiveX {

class FontListener;

// The grid's font as the font object that clients hold: `grid.DataFont.Size = 20` changes the grid. A
// client's own object that it gives to the grid stays connected in the same way.
class LiveFont
{
public:
    explicit LiveFont(KOVAVSFDataGrid &grid);
    ~LiveFont();
    LiveFont(const LiveFont &) = delete;
    LiveFont &operator=(const LiveFont &) = delete;

    HRESULT get(IDispatch **font);
    // Null, or something else than a font, is DISP_E_TYPEMISMATCH.
    HRESULT put(IUnknown *font);

private:
    friend class FontListener;
    HRESULT connect(IUnknown *font);
    void disconnect();
    // Takes over what the object says.
    HRESULT read(IUnknown *font);

    KOVAVSFDataGrid &m_grid;
    Microsoft::WRL::ComPtr<IDispatch> m_font; // null until a client asks or gives one
    QFont m_known;                            // what the grid had when the object was last the same
    Microsoft::WRL::ComPtr<IConnectionPoint> m_point;
    Microsoft::WRL::ComPtr<FontListener> m_listener;
    DWORD m_cookie = 0;
};

} // namespace KOVAVSFDataGridLib::ActiveX
