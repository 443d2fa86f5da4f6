#include "Container.h"

#include "DialogWatch.h"

#include <cstdio>
#include <olectl.h>
#include <stdexcept>
#include <utility>

using Microsoft::WRL::ComPtr;

namespace {

constexpr wchar_t progId[] = L"KOVAVSFDataGridLib.KOVAVSFDataGrid";
constexpr wchar_t windowClassName[] = L"KovaContainer";
constexpr DISPID qurryFilter = 11;

void check(HRESULT outcome, const char *what)
{
    if (FAILED(outcome)) {
        char text[200];
        std::snprintf(text, sizeof text, "%s: 0x%08lx", what, static_cast<unsigned long>(outcome));
        throw std::runtime_error(text);
    }
}

HWND newWindow(int width, int height)
{
    static const ATOM windowClass = [] {
        WNDCLASSW description{};
        description.lpfnWndProc = DefWindowProcW;
        description.hInstance = GetModuleHandleW(nullptr);
        description.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        description.lpszClassName = windowClassName;
        return RegisterClassW(&description);
    }();
    RECT frame{0, 0, width, height};
    AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    const HWND window =
        CreateWindowW(MAKEINTATOM(windowClass), L"Container", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 20, 20,
                      frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr,
                      GetModuleHandleW(nullptr), nullptr);
    ShowWindow(window, SW_SHOW);
    SetForegroundWindow(window);
    return window;
}

} // namespace

Container::Container(int width, int height, bool userMode) : m_userMode(userMode)
{
    m_window = newWindow(width, height);
    CLSID id{};
    check(CLSIDFromProgID(progId, &id), "CLSIDFromProgID");
    check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&m_control)), "CoCreateInstance");

    const auto points = as<IConnectionPointContainer>();
    GUID events{};
    check(as<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), "GetGUID");
    check(points->FindConnectionPoint(events, &m_eventPoint), "event point");
    check(points->FindConnectionPoint(IID_IPropertyNotifySink, &m_propertyPoint), "property point");
    check(m_eventPoint->Advise(static_cast<IDispatch *>(this), &m_eventCookie), "Advise events");
    check(m_propertyPoint->Advise(static_cast<IPropertyNotifySink *>(this), &m_propertyCookie),
          "Advise properties");

    const auto object = as<IOleObject>();
    check(object->SetClientSite(this), "SetClientSite");
    check(as<IPersistStreamInit>()->InitNew(), "InitNew");
    check(doVerb(OLEIVERB_INPLACEACTIVATE), "DoVerb");
    run();
}

Container::~Container()
{
    DialogWatch::cancel();
    release();
}

bool Container::release()
{
    if (!m_control)
        return false;
    m_eventPoint->Unadvise(m_eventCookie);
    m_propertyPoint->Unadvise(m_propertyCookie);
    m_eventPoint.Reset();
    m_propertyPoint.Reset();
    {
        const auto object = as<IOleObject>();
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
    }
    m_active.Reset();
    const bool gone = m_control.Reset() == 0;
    DestroyWindow(m_window);
    run();
    return gone;
}

void Container::closeForm()
{
    DestroyWindow(std::exchange(m_window, nullptr));
    run();
}

HRESULT Container::openForm(int width, int height)
{
    m_window = newWindow(width, height);
    const HRESULT outcome = doVerb(OLEIVERB_INPLACEACTIVATE);
    run();
    return outcome;
}

HWND Container::controlWindow() const
{
    HWND window = nullptr;
    as<IOleInPlaceObject>()->GetWindow(&window);
    return window;
}

HRESULT Container::doVerb(LONG verb)
{
    RECT position{};
    GetClientRect(m_window, &position);
    return as<IOleObject>()->DoVerb(verb, nullptr, this, 0, m_window, &position);
}

void Container::setUserMode(bool on)
{
    m_userMode = on;
    as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
}

void Container::setAmbient(DISPID id, const Late::Value &value)
{
    m_ambients[id] = value;
    as<IOleControl>()->OnAmbientPropertyChange(id);
}

int Container::countOf(DISPID id) const
{
    int count = 0;
    for (const Event &event : m_events)
        count += event.id == id;
    return count;
}

POINT Container::onScreen(int x, int y) const
{
    POINT point{x, y};
    ClientToScreen(controlWindow(), &point);
    return point;
}

void Container::click(int x, int y)
{
    const POINT point = onScreen(x, y);
    SetCursorPos(point.x, point.y);
    run();
    INPUT input[2]{};
    input[0].type = input[1].type = INPUT_MOUSE;
    input[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    input[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(2, input, sizeof(INPUT));
    run();
}

void Container::doubleClick(int x, int y)
{
    const POINT point = onScreen(x, y);
    SetCursorPos(point.x, point.y);
    run();
    INPUT input[4]{};
    for (int i = 0; i < 4; ++i) {
        input[i].type = INPUT_MOUSE;
        input[i].mi.dwFlags = i % 2 ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_LEFTDOWN;
    }
    SendInput(4, input, sizeof(INPUT));
    run();
}

void Container::press(WORD virtualKey, const std::vector<WORD> &modifiers)
{
    std::vector<INPUT> input;
    const auto add = [&input](WORD key, DWORD flags) {
        INPUT one{};
        one.type = INPUT_KEYBOARD;
        one.ki.wVk = key;
        one.ki.dwFlags = flags;
        input.push_back(one);
    };
    for (const WORD modifier : modifiers)
        add(modifier, 0);
    add(virtualKey, 0);
    add(virtualKey, KEYEVENTF_KEYUP);
    for (const WORD modifier : modifiers)
        add(modifier, KEYEVENTF_KEYUP);
    SendInput(static_cast<UINT>(input.size()), input.data(), sizeof(INPUT));
}

void Container::key(WORD virtualKey, const std::vector<WORD> &modifiers)
{
    press(virtualKey, modifiers);
    run();
}

void Container::whenDialogIsOpen(std::function<void()> action)
{
    DialogWatch::whenOpen(windowClassName, std::move(action));
}

void Container::answerQurryFilter(long cancel, const wchar_t *condition)
{
    m_cancel = cancel;
    m_condition = condition;
}

void Container::run(const std::function<bool()> &done, DWORD most)
{
    constexpr DWORD idle = 120; // milliseconds without a message
    const DWORD start = GetTickCount();
    const auto isInTime = [&] { return GetTickCount() - start < most; };
    while (isInTime() && !(done && done())) {
        const DWORD woken = MsgWaitForMultipleObjects(0, nullptr, FALSE, idle, QS_ALLINPUT);
        if (woken == WAIT_TIMEOUT && !done)
            return;
        MSG message{};
        while (isInTime() && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) { // is for the loop around this one
                PostQuitMessage(static_cast<int>(message.wParam));
                return;
            }
            const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
            if (isKey && m_active && m_active->TranslateAccelerator(&message) == S_OK)
                continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

STDMETHODIMP Container::QueryInterface(REFIID iid, void **object)
{
    *object = nullptr;
    if (iid == IID_IUnknown || iid == IID_IOleClientSite)
        *object = static_cast<IOleClientSite *>(this);
    else if (iid == IID_IOleWindow || iid == IID_IOleInPlaceSite)
        *object = static_cast<IOleInPlaceSite *>(this);
    else if (iid == IID_IOleInPlaceFrame || iid == IID_IOleInPlaceUIWindow)
        *object = static_cast<IOleInPlaceFrame *>(this);
    else if (iid == IID_IOleControlSite)
        *object = static_cast<IOleControlSite *>(this);
    else if (iid == IID_IPropertyNotifySink)
        *object = static_cast<IPropertyNotifySink *>(this);
    else if (iid == IID_IDispatch)
        *object = static_cast<IDispatch *>(this);
    else
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP Container::GetContainer(IOleContainer **container)
{
    *container = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP Container::GetWindow(HWND *window)
{
    *window = m_window;
    return S_OK;
}

STDMETHODIMP Container::OnUIActivate()
{
    m_hasUi = true;
    return S_OK;
}

STDMETHODIMP Container::OnUIDeactivate(BOOL)
{
    m_hasUi = false;
    return S_OK;
}

STDMETHODIMP Container::GetWindowContext(IOleInPlaceFrame **frame, IOleInPlaceUIWindow **document,
                                         LPRECT position, LPRECT clip, LPOLEINPLACEFRAMEINFO info)
{
    AddRef();
    *frame = this;
    *document = nullptr;
    GetClientRect(m_window, position);
    *clip = *position;
    info->fMDIApp = FALSE;
    info->hwndFrame = m_window;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
}

STDMETHODIMP Container::SetActiveObject(IOleInPlaceActiveObject *active, LPCOLESTR)
{
    m_active = active;
    return S_OK;
}

STDMETHODIMP Container::TranslateAccelerator(MSG *message, DWORD modifiers)
{
    m_passedKey = {message->wParam, modifiers};
    return S_FALSE;
}

STDMETHODIMP Container::EnableModeless(BOOL enable)
{
    m_isModeless = enable != FALSE;
    return S_OK;
}

STDMETHODIMP Container::GetExtendedControl(IDispatch **control)
{
    *control = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP Container::OnChanged(DISPID id)
{
    m_changed.push_back(id);
    if (m_changeHandler)
        m_changeHandler(id);
    return S_OK;
}

STDMETHODIMP Container::GetTypeInfoCount(UINT *count)
{
    *count = 0;
    return S_OK;
}

STDMETHODIMP Container::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS *parameters, VARIANT *result,
                               EXCEPINFO *, UINT *)
{
    if (id == DISPID_AMBIENT_USERMODE) {
        result->vt = VT_BOOL;
        result->boolVal = m_userMode ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
    }
    if (id < 0) {
        const auto known = m_ambients.find(id);
        return known == m_ambients.end() ? DISP_E_MEMBERNOTFOUND : VariantCopy(result, known->second.get());
    }

    Event event{id, {}, {}};
    for (UINT i = parameters->cArgs; i-- > 0;) {
        const VARIANT &argument = parameters->rgvarg[i];
        if (argument.vt == VT_BSTR) {
            event.text.assign(argument.bstrVal, SysStringLen(argument.bstrVal));
        } else {
            VARIANT number;
            VariantInit(&number);
            VariantChangeType(&number, const_cast<VARIANT *>(&argument), 0, VT_R8);
            event.numbers.push_back(number.dblVal);
        }
    }
    m_events.push_back(event);
    if (id == qurryFilter) {
        if (!m_condition.empty())
            Late::put(m_control, L"PassQurryFilter", m_condition.c_str());
        *parameters->rgvarg[1].plVal = m_cancel;
    }
    if (m_handler)
        m_handler(id);
    return S_OK;
}
