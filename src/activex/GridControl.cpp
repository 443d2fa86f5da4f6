#include "activex/GridControl.h"

#include <KOVAVSFDataGrid>

#include <new>

namespace KOVAVSFDataGridLib::ActiveX {

HRESULT GridControl::create(IUnknown *outer, REFIID iid, void **object)
{
    auto *control = new GridControl(outer);
    const HRESULT offered = static_cast<IUnknown *>(control)->QueryInterface(iid, object);
    static_cast<IUnknown *>(control)->Release();
    return offered;
}

GridControl::GridControl(IUnknown *outer)
    : m_outer(outer ? outer : static_cast<IUnknown *>(this)),
      m_grid(std::make_unique<KOVAVSFDataGrid>()),
      m_dispatch(*this),
      m_connectionPoints(*this),
      m_oleObject(*this),
      m_oleControl(*this),
      m_view(*this),
      m_inPlace(*this),
      m_stream(*this),
      m_bag(*this),
      m_classInfo(*this),
      m_pages(*this),
      m_holder(*this),
      m_storage(*this),
      m_quickStart(*this),
      m_data(*this),
      m_running(*this),
      m_propertyTexts(*this)
{
}

GridControl::~GridControl() = default;

STDMETHODIMP GridControl::QueryInterface(REFIID iid, void **object)
{
    if (!object)
        return E_POINTER;
    if (iid == IID_IUnknown) {
        *object = static_cast<IUnknown *>(this);
        AddRef();
        return S_OK;
    }

    IUnknown *part = nullptr;
    if (iid == IID_IDispatch || iid == interfaceId)
        part = &m_dispatch;
    else if (iid == IID_IOleObject)
        part = &m_oleObject;
    else if (iid == IID_IOleControl)
        part = &m_oleControl;
    else if (iid == IID_IOleWindow || iid == IID_IOleInPlaceObject)
        part = &m_inPlace.object();
    else if (iid == IID_IOleInPlaceActiveObject)
        part = &m_inPlace.activeObject();
    else if (iid == IID_IViewObject || iid == IID_IViewObject2 || iid == IID_IViewObjectEx)
        part = &m_view;
    else if (iid == IID_IPersist || iid == IID_IPersistStreamInit)
        part = &m_stream;
    else if (iid == IID_IPersistPropertyBag)
        part = &m_bag;
    else if (iid == IID_IPersistStorage)
        part = &m_storage;
    else if (iid == IID_IQuickActivate)
        part = &m_quickStart;
    else if (iid == IID_IDataObject)
        part = &m_data;
    else if (iid == IID_IRunnableObject)
        part = &m_running;
    else if (iid == IID_IPerPropertyBrowsing)
        part = &m_propertyTexts;
    else if (iid == IID_IConnectionPointContainer)
        part = &m_connectionPoints;
    else if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2)
        part = &m_classInfo;
    else if (iid == IID_ISpecifyPropertyPages)
        part = &m_pages;
    else if (iid == __uuidof(ObjectHolder))
        part = &m_holder;
    *object = part;
    if (!part)
        return E_NOINTERFACE;
    part->AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) GridControl::AddRef()
{
    return static_cast<ULONG>(InterlockedIncrement(&m_references));
}

STDMETHODIMP_(ULONG) GridControl::Release()
{
    const LONG left = InterlockedDecrement(&m_references);
    if (left == 0) {
        // The shutdown calls listeners and containers, which may add and release references meanwhile.
        m_references = 1;
        const bool isInEvent = m_connectionPoints.events().isTelling();
        m_inPlace.end();
        m_connectionPoints.end();
        // A widget that is emitting a signal can't be deleted yet, and a script host has no event loop that
        // would delete it later. So its file is closed at once.
        if (isInEvent) {
            m_grid->Clear();
            m_grid.release()->deleteLater();
        }
        delete this;
    }
    return static_cast<ULONG>(left);
}

} // namespace KOVAVSFDataGridLib::ActiveX
