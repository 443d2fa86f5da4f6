#pragma once

#include <QtGui/QFont>

#include <ocidl.h>
#include <wrl/client.h>

class KOVAVSFDataGrid;

namespace KOVAVSFDataGridLib::ActiveX {

class FontListener;

// The grid's font as the font object that clients use: `grid.DataFont.Size = 20` changes the grid. A client's
// own font object, set as the grid's font, stays connected in the same way.
class LiveFont
{
public:
    explicit LiveFont(KOVAVSFDataGrid &grid);
    ~LiveFont();
    LiveFont(const LiveFont &) = delete;
    LiveFont &operator=(const LiveFont &) = delete;

    HRESULT get(IDispatch **font);
    // Returns DISP_E_TYPEMISMATCH for null or anything but a font.
    HRESULT put(IUnknown *font);

private:
    friend class FontListener;
    HRESULT connect(IUnknown *font);
    void disconnect();
    // Copies the object's font to the grid.
    HRESULT read(IUnknown *font);

    KOVAVSFDataGrid &m_grid;
    Microsoft::WRL::ComPtr<IDispatch> m_font; // null until a client reads or sets it
    QFont m_known;                            // the grid's font when it was last in sync with the object
    Microsoft::WRL::ComPtr<IConnectionPoint> m_point;
    Microsoft::WRL::ComPtr<FontListener> m_listener;
    DWORD m_cookie = 0;
};

} // namespace KOVAVSFDataGridLib::ActiveX
