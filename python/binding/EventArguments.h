#pragma once

#include <QtCore/QString>

#include <memory>

// What a Python handler of an event can read and change. Python has no reference arguments, so an event
// carries one of these. Copies share their values: each handler has a copy, and may keep it.

struct MouseValues
{
    qint16 Button, Shift;
    float x, y;
};

struct KeyValues
{
    qint16 KeyCode, Shift;
};

struct ErrorValues
{
    qint16 DataError, Response;
};

struct FilterValues
{
    qint32 Cancel;
    QString strLastFilter;
};

template<typename Values>
class SharedArguments
{
public:
    explicit SharedArguments(const Values &values = {}) : m_values(std::make_shared<Values>(values)) {}
    Values *operator->() const { return m_values.get(); }

private:
    std::shared_ptr<Values> m_values;
};

// The arguments of the events: separate classes, because moc and PyQt need plain type names.
class MouseArguments : public SharedArguments<MouseValues>
{
    using SharedArguments::SharedArguments;
};

class KeyArguments : public SharedArguments<KeyValues>
{
    using SharedArguments::SharedArguments;
};

class ErrorArguments : public SharedArguments<ErrorValues>
{
    using SharedArguments::SharedArguments;
};

class FilterArguments : public SharedArguments<FilterValues>
{
    using SharedArguments::SharedArguments;
};

// The same for a Python object, which owns its copy: PyQt passes a reference to the sender's stack.
struct KeptMouseArguments : MouseArguments
{
};

struct KeptKeyArguments : KeyArguments
{
};

struct KeptErrorArguments : ErrorArguments
{
};

struct KeptFilterArguments : FilterArguments
{
};
