#pragma once

#include "activex/calls/ConnectionPoints.h"
#include "activex/calls/GridDispatch.h"
#include "activex/container/GridPersistence.h"
#include "activex/container/InPlace.h"
#include "activex/container/OleControl.h"
#include "activex/container/OleObject.h"
#include "activex/container/ViewObject.h"
#include "activex/server/ClassInfo.h"
#include "activex/server/ModuleUse.h"

#include <memory>

class KOVAVSFDataGrid;

namespace KOVAVSFDataGridLib::ActiveX {

// The control as COM sees it: one identity over the interfaces that containers and scripts ask for. Each of
// them is a small class of its own; this one holds the widget and what they share. May be aggregated.
//
// Lives on the thread of the first one made in the process, as the widget does.
class GridControl final : private IUnknown
{
public:
    // With one reference, the caller's, on the interface asked for. `outer` is the aggregating object or
    // null.
    static HRESULT create(IUnknown *outer, REFIID iid, void **object);

    KOVAVSFDataGrid &grid() { return *m_grid; }
    // The object that clients know: this one, or the one that aggregates it.
    IUnknown &identity() { return *m_outer; }

    OleObject &oleObject() { return m_oleObject; }
    OleControl &oleControl() { return m_oleControl; }
    ViewObject &view() { return m_view; }
    InPlace &inPlace() { return m_inPlace; }
    ConnectionPoints &connectionPoints() { return m_connectionPoints; }
    const GridDispatch &dispatch() const { return m_dispatch; }
    StreamPersistence &persistence() { return m_stream; }

private:
    explicit GridControl(IUnknown *outer);
    ~GridControl();

    // The inner identity: what an aggregating object holds.
    STDMETHODIMP QueryInterface(REFIID iid, void **object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    ModuleUse m_use;
    LONG m_references = 1;
    IUnknown *const m_outer; // not counted: it owns this
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
};

} // namespace KOVAVSFDataGridLib::ActiveX
