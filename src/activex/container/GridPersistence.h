#pragma once

#include "activex/server/ComObject.h"

#include <QtCore/QString>

#include <ocidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// What a container keeps of the control between two runs: the background colour and nothing else. To a
// stream…
class StreamPersistence final : public Part<IPersistStreamInit>
{
public:
    explicit StreamPersistence(GridControl &control);

    STDMETHODIMP GetClassID(CLSID *id) override;
    STDMETHODIMP IsDirty() override;
    STDMETHODIMP Load(IStream *stream) override;
    STDMETHODIMP Save(IStream *stream, BOOL clearDirty) override;
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER *size) override;
    STDMETHODIMP InitNew() override;

    // The background colour as it is kept: as automation's number, so that a colour of the system's stays
    // one.
    quint32 backColor() const;
    // Tells nobody.
    void putBackColor(quint32 number);
    // Only a property that is kept makes the control dirty.
    void propertyChanged(const QString &name);
    void saved() { m_dirty = false; }

private:
    GridControl &m_control;
    bool m_dirty = false;
};

// … or to a property bag.
class BagPersistence final : public Part<IPersistPropertyBag>
{
public:
    explicit BagPersistence(GridControl &control);

    STDMETHODIMP GetClassID(CLSID *id) override;
    STDMETHODIMP InitNew() override;
    STDMETHODIMP Load(IPropertyBag *bag, IErrorLog *log) override;
    STDMETHODIMP Save(IPropertyBag *bag, BOOL clearDirty, BOOL saveAll) override;

private:
    GridControl &m_control;
};

} // namespace KOVAVSFDataGridLib::ActiveX
