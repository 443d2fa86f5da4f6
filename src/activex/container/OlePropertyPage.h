#pragma once

#include "activex/container/EmbeddedWindow.h"
#include "activex/server/ClassFactory.h"
#include "activex/server/QtHome.h"

#include <memory>
#include <ocidl.h>
#include <vector>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib {
class PropertyPage;
}

namespace KOVAVSFDataGridLib::ActiveX {

// One of the control's property pages in a container's property frame.
class OlePropertyPage final : public ComObject<IPropertyPage>
{
public:
    // The function that creates a page of a class; null if it is not a page of this server.
    static ClassFactory::Create creatorOf(REFCLSID id);

    STDMETHODIMP SetPageSite(IPropertyPageSite *site) override;
    STDMETHODIMP Activate(HWND parent, LPCRECT position, BOOL modal) override;
    STDMETHODIMP Deactivate() override;
    STDMETHODIMP GetPageInfo(PROPPAGEINFO *info) override;
    STDMETHODIMP SetObjects(ULONG count, IUnknown **objects) override;
    STDMETHODIMP Show(UINT command) override;
    STDMETHODIMP Move(LPCRECT position) override;
    STDMETHODIMP IsPageDirty() override;
    STDMETHODIMP Apply() override;
    STDMETHODIMP Help(LPCOLESTR folder) override;
    STDMETHODIMP TranslateAccelerator(MSG *message) override;

private:
    OlePropertyPage(const QString &title, std::unique_ptr<KOVAVSFDataGridLib::PropertyPage> page);
    ~OlePropertyPage() override;
    template<int Index>
    static HRESULT create(IUnknown *outer, REFIID iid, void **object);

    // The size at which the page shows everything, in pixels.
    SIZE preferredSize() const;
    // At most the preferred size: a frame may offer more room than its window finally has.
    RECT placeIn(const RECT &room) const;

    const QtUse m_qtUse;
    // In this order: the window releases the page before the page is destroyed.
    const std::unique_ptr<KOVAVSFDataGridLib::PropertyPage> m_page;
    EmbeddedWindow m_window;
    Microsoft::WRL::ComPtr<IPropertyPageSite> m_site;
    std::vector<Microsoft::WRL::ComPtr<IUnknown>> m_objects;
};

} // namespace KOVAVSFDataGridLib::ActiveX
