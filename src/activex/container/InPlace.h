#pragma once

#include "activex/container/EmbeddedWindow.h"
#include "activex/server/ComObject.h"

#include <oleidl.h>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;
class InPlace;

// The container's side of moving, clipping and ending an active control.
class InPlaceObject final : public Part<IOleInPlaceObject>
{
public:
    InPlaceObject(GridControl &control, InPlace &inPlace);

    STDMETHODIMP GetWindow(HWND *window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL enter) override;
    STDMETHODIMP InPlaceDeactivate() override;
    STDMETHODIMP UIDeactivate() override;
    STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) override;
    STDMETHODIMP ReactivateAndUndo() override;

private:
    InPlace &m_inPlace;
};

// The container's way to hand keys to the control that the user works in.
class InPlaceActiveObject final : public Part<IOleInPlaceActiveObject>
{
public:
    InPlaceActiveObject(GridControl &control, InPlace &inPlace);

    STDMETHODIMP GetWindow(HWND *window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL enter) override;
    STDMETHODIMP TranslateAccelerator(LPMSG message) override;
    STDMETHODIMP OnFrameWindowActivate(BOOL activate) override;
    STDMETHODIMP OnDocWindowActivate(BOOL activate) override;
    STDMETHODIMP ResizeBorder(LPCRECT border, IOleInPlaceUIWindow *window, BOOL frame) override;
    STDMETHODIMP EnableModeless(BOOL enable) override;

private:
    InPlace &m_inPlace;
};

// The control in a window of its container: inactive, active (it has its window) or active with the user
// interface (the user works in it).
class InPlace
{
public:
    enum Depth { WithoutUi, WithUi };

    explicit InPlace(GridControl &control);

    InPlaceObject &object() { return m_object; }
    InPlaceActiveObject &activeObject() { return m_activeObject; }
    EmbeddedWindow &window() { return m_window; }

    bool isActive() const { return m_site; }
    HRESULT activate(Depth depth);
    void deactivateUi();
    void deactivate();
    // For the end of the control: gives everything back without a word to the container.
    void end();
    // S_OK when the key was used here, S_FALSE when it is the container's.
    HRESULT translate(MSG &message);

private:
    HRESULT activateUi();
    // The keyboard came or left.
    void focusMoved(bool here);
    // The container's modeless windows must rest while a dialog of the control is open.
    void dialogOpen(bool on);

    GridControl &m_control;
    InPlaceObject m_object;
    InPlaceActiveObject m_activeObject;
    EmbeddedWindow m_window;
    Microsoft::WRL::ComPtr<IOleInPlaceSite> m_site;
    Microsoft::WRL::ComPtr<IOleInPlaceFrame> m_frame;
    Microsoft::WRL::ComPtr<IOleInPlaceUIWindow> m_document;
    bool m_hasUi = false;
};

} // namespace KOVAVSFDataGridLib::ActiveX
