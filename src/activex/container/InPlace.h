#pragma once

#include "activex/container/EmbeddedWindow.h"
#include "activex/server/ComObject.h"

#include <oleidl.h>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;
class InPlace;

// Called by the container to move, clip and deactivate an active control.
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

// Called by the container to pass keys to the control that has the focus.
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

// The control in a window of its container. It is inactive, active (it has a window) or UI-active (the user
// works in it).
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
    // For the destruction of the control: releases everything without calling the container.
    void end();
    // S_OK if the control or its site used the key, S_FALSE if the container should handle it.
    HRESULT translate(MSG &message);

private:
    HRESULT activateUi();
    // The control got or lost the keyboard focus.
    void focusMoved(bool here);
    // Disables the container's modeless windows while a dialog of the control is open.
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
