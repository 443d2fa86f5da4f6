#pragma once

#include "activex/calls/ConnectionPoints.h"
#include "activex/calls/GridDispatch.h"
#include "activex/container/DataObject.h"
#include "activex/container/GridPersistence.h"
#include "activex/container/InPlace.h"
#include "activex/container/OleControl.h"
#include "activex/container/OleObject.h"
#include "activex/container/QuickStart.h"
#include "activex/container/StoragePersistence.h"
#include "activex/container/ViewObject.h"
#include "activex/server/ClassInfo.h"
#include "activex/server/ModuleUse.h"
#include "activex/server/QtHome.h"

#include <memory>

class KOVAVSFDataGrid;

namespace KOVAVSFDataGridLib::ActiveX {

// The control as a COM object: one identity with all interfaces that containers and scripts ask for. Each
// interface is a small class of its own; this class has the widget and their shared state. Can be aggregated.
//
// Lives on Qt's thread (see QtHome), as the widget does.
class GridControl final : private IUnknown
{
public:
    // Creates a control with one reference, owned by the caller, to the requested interface. `outer` is the
    // aggregating object or null.
    static HRESULT create(IUnknown *outer, REFIID iid, void **object);

    KOVAVSFDataGrid &grid() { return *m_grid; }
    // The object that clients see: this one, or the one that aggregates it.
    IUnknown &identity() { return *m_outer; }

    OleObject &oleObject() { return m_oleObject; }
    OleControl &oleControl() { return m_oleControl; }
    ViewObject &view() { return m_view; }
    InPlace &inPlace() { return m_inPlace; }
    ConnectionPoints &connectionPoints() { return m_connectionPoints; }
    const GridDispatch &dispatch() const { return m_dispatch; }
    StreamPersistence &persistence() { return m_stream; }
    DataObject &data() { return m_data; }

private:
    explicit GridControl(IUnknown *outer);
    ~GridControl();

    // The inner IUnknown, which an aggregating object holds.
    STDMETHODIMP QueryInterface(REFIID iid, void **object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    ModuleUse m_use;
    QtUse m_qtUse;
    LONG m_references = 1;
    IUnknown *const m_outer; // no reference counted: it owns this object
    std::unique_ptr<KOVAVSFDataGrid> m_grid;

    GridDispatch m_dispatch;
    ConnectionPoints m_connectionPoints;
    OleObject m_oleObject;
    OleControl m_oleControl;
    ViewObject m_view;
    InPlace m_inPlace;
    StreamPersistence m_stream;
    BagPersistence m_bag;
    ClassInfo m_classInfo;
    PropertyPageList m_pages;
    GridHolder m_holder;
    StoragePersistence m_storage;
    QuickStart m_quickStart;
    DataObject m_data;
    Running m_running;
    PropertyTexts m_propertyTexts;
};

} // namespace KOVAVSFDataGridLib::ActiveX
