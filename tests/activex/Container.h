#pragma once

#include "Late.h"

#include <functional>
#include <map>
#include <ocidl.h>
#include <oleidl.h>
#include <string>
#include <utility>
#include <vector>

// One event as it arrived, with the numbers of its arguments before the handler changed any.
struct Event
{
    DISPID id;
    std::vector<double> numbers; // of the arguments that are numbers, from left to right
    std::wstring text;           // of the argument that is a text
};

// A plain ActiveX container: one control in one window. It is its own site, frame, ambient properties and
// event listener.
class Container final : public IOleClientSite,
                        public IOleInPlaceSite,
                        public IOleInPlaceFrame,
                        public IOleControlSite,
                        public IPropertyNotifySink,
                        public IDispatch
{
public:
    // Creates the control by its ProgID and activates it in a new window of this client size.
    Container(int width, int height, bool userMode = true);
    ~Container();

    const Late::Object &control() const { return m_control; }
    template<class Interface>
    Microsoft::WRL::ComPtr<Interface> as() const
    {
        Microsoft::WRL::ComPtr<Interface> part;
        m_control.As(&part);
        return part;
    }
    HWND window() const { return m_window; }
    HWND controlWindow() const;
    HRESULT doVerb(LONG verb);
    // Destroys the form's window while the control lives on, without a word to the control.
    void closeForm();
    // Activates the control in a new window.
    HRESULT openForm(int width, int height);
    // Releases everything; returns true if the control was destroyed with the last reference.
    bool release();

    void setUserMode(bool on);
    // Another ambient property than UserMode; the control is told.
    void setAmbient(DISPID id, const Late::Value &value);
    // What a handler of QurryFilter sets Cancel to, and the condition that it passes to the control.
    void answerQurryFilter(long cancel, const wchar_t *condition);
    // Called for every event, after it was noted.
    void onEvent(std::function<void(DISPID)> handler) { m_handler = std::move(handler); }
    // Called for every property change, after it was recorded.
    void onChange(std::function<void(DISPID)> handler) { m_changeHandler = std::move(handler); }

    const std::vector<Event> &events() const { return m_events; }
    int countOf(DISPID id) const;
    void forget() { m_events.clear(); }
    const std::vector<DISPID> &changedProperties() const { return m_changed; }
    bool hasUi() const { return m_hasUi; }
    // The latest key that the control passed on to its site, with its modifiers.
    std::pair<WPARAM, DWORD> passedKey() const { return m_passedKey; }
    bool isModeless() const { return m_isModeless; }
    ULONG references() const { return m_references; }

    // User input at a point of the control's window.
    void click(int x, int y);
    void doubleClick(int x, int y);
    void key(WORD virtualKey, const std::vector<WORD> &modifiers = {});
    // The user's action in the modal dialog that the next input opens. It is called from that dialog's own
    // event loop, so it may send input but must not wait for it.
    static void whenDialogIsOpen(std::function<void()> action);
    static void press(WORD virtualKey, const std::vector<WORD> &modifiers = {});
    // Runs the message loop until it has been idle for a while, or until `done` returns true.
    void run(const std::function<bool()> &done = {}, DWORD most = 20000);

    // IUnknown
    STDMETHODIMP QueryInterface(REFIID iid, void **object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override { return --m_references; }
    // IOleClientSite
    STDMETHODIMP SaveObject() override { return S_OK; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker **) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer **container) override;
    STDMETHODIMP ShowObject() override { return S_OK; }
    STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
    // IOleWindow
    STDMETHODIMP GetWindow(HWND *window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    // IOleInPlaceSite
    STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
    STDMETHODIMP OnUIActivate() override;
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame **frame, IOleInPlaceUIWindow **document, LPRECT position,
                                  LPRECT clip, LPOLEINPLACEFRAMEINFO info) override;
    STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
    STDMETHODIMP OnUIDeactivate(BOOL) override;
    STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
    STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
    STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }
    // IOleInPlaceFrame
    STDMETHODIMP GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject *active, LPCOLESTR) override;
    STDMETHODIMP InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    STDMETHODIMP RemoveMenus(HMENU) override { return S_OK; }
    STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL enable) override;
    STDMETHODIMP TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }
    // IOleControlSite
    STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
    STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
    STDMETHODIMP GetExtendedControl(IDispatch **control) override;
    STDMETHODIMP TransformCoords(POINTL *, POINTF *, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(MSG *message, DWORD modifiers) override;
    STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
    STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }
    // IPropertyNotifySink
    STDMETHODIMP OnChanged(DISPID id) override;
    STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; }
    // IDispatch: the ambient properties and the events
    STDMETHODIMP GetTypeInfoCount(UINT *count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo **) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR *, UINT, LCID, DISPID *) override
    {
        return DISP_E_UNKNOWNNAME;
    }
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS *parameters,
                        VARIANT *result, EXCEPINFO *exception, UINT *badArgument) override;

private:
    POINT onScreen(int x, int y) const;

    ULONG m_references = 1;
    HWND m_window = nullptr;
    bool m_userMode;
    std::map<DISPID, Late::Value> m_ambients;
    bool m_hasUi = false;
    std::pair<WPARAM, DWORD> m_passedKey{};
    bool m_isModeless = true;
    long m_cancel = 1;
    std::wstring m_condition;
    std::function<void(DISPID)> m_handler;
    std::function<void(DISPID)> m_changeHandler;
    Late::Object m_control;
    Microsoft::WRL::ComPtr<IOleInPlaceActiveObject> m_active;
    Microsoft::WRL::ComPtr<IConnectionPoint> m_eventPoint;
    Microsoft::WRL::ComPtr<IConnectionPoint> m_propertyPoint;
    DWORD m_eventCookie = 0;
    DWORD m_propertyCookie = 0;
    std::vector<Event> m_events;
    std::vector<DISPID> m_changed;
};
