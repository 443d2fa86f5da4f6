#pragma once

#include "activex/server/ComObject.h"

#include <QtCore/QString>

#include <ocidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// What a container saves of the control:
// only the background colour. To a stream…
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

    // The background colour as it is saved: automation's
    // number, so that a system colour stays one.
    quint32 backColor() const;
    // Does not notify anybody.
    void putBackColor(quint32 number);
    // Only a property that is saved makes the control dirty.
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
