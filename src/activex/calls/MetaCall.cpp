#include "activex/calls/MetaCall.h"

#include "activex/calls/HostErrorCatcher.h"
#include "activex/calls/MemberTable.h"
#include "activex/calls/Variants.h"

#include <QtCore/QPointer>

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <vector>

namespace KOVAVSFDataGridLib::ActiveX {

using namespace Qt::StringLiterals;

namespace {

using Arguments = std::vector<const VARIANT *>;

HRESULT raise(qint32 number, const QString &description, EXCEPINFO *exception)
{
    if (exception) {
        *exception = {};
        // Visual Basic's error numbers use their own facility.
        if (number > 0 && number <= 0xFFFF)
            exception->scode = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
        else
            exception->scode = number;
        exception->bstrSource = toBstr(u"KOVAVSFDataGridLib"_s);
        exception->bstrDescription = toBstr(description);
    }
    return DISP_E_EXCEPTION;
}

// Visual Basic passes its own variables as references to VARIANTs.
const VARIANT &direct(const VARIANT &argument)
{
    return argument.vt == (VT_BYREF | VT_VARIANT) ? *argument.pvarVal : argument;
}

bool isOmitted(const VARIANT &argument)
{
    const VARIANT &value = direct(argument);
    return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

// The arguments from left to right. In DISPPARAMS they are from right to left, with named ones first.
HRESULT argumentsIn(const DISPPARAMS &parameters, Arguments &arguments)
{
    const UINT positional = parameters.cArgs - parameters.cNamedArgs;
    arguments.assign(parameters.cArgs, nullptr);
    for (UINT i = 0; i < positional; ++i)
        arguments[i] = &parameters.rgvarg[parameters.cArgs - 1 - i];
    for (UINT i = 0; i < parameters.cNamedArgs; ++i) {
        const DISPID place = parameters.rgdispidNamedArgs[i];
        if (place < 0 || static_cast<UINT>(place) >= parameters.cArgs || arguments[static_cast<UINT>(place)])
            return DISP_E_PARAMNOTFOUND;
        arguments[static_cast<UINT>(place)] = &parameters.rgvarg[i];
    }
    while (!arguments.empty() && isOmitted(*arguments.back()))
        arguments.pop_back();
    return S_OK;
}

UINT placeOf(const VARIANT *argument, const DISPPARAMS &parameters)
{
    return static_cast<UINT>(argument - parameters.rgvarg);
}

class MethodCall
{
public:
    // Converts the arguments for this overload. On failure, `bad` is the one that does not fit.
    HRESULT prepare(const QMetaMethod &method, const Arguments &arguments, const VARIANT **bad)
    {
        m_method = method;
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            const QMetaType type = method.parameterMetaType(static_cast<int>(i));
            const HRESULT fits = toQt(*arguments[i], type, &m_values[i]);
            if (FAILED(fits)) {
                *bad = arguments[i];
                return fits;
            }
            const bool whole = type.id() == QMetaType::QVariant;
            m_pointers[i + 1] = whole ? &m_values[i] : m_values[i].data();
        }
        return S_OK;
    }

    QVariant run(QObject &object)
    {
        const QMetaType type = m_method.returnMetaType();
        const bool whole = type.id() == QMetaType::QVariant;
        QVariant answer = whole || type.id() == QMetaType::Void ? QVariant() : QVariant(type);
        m_pointers[0] = whole ? &answer : type.id() == QMetaType::Void ? nullptr : answer.data();
        QMetaObject::metacall(&object, QMetaObject::InvokeMetaMethod, m_method.methodIndex(),
                              m_pointers.data());
        return answer;
    }

private:
    static constexpr std::size_t mostArguments = 10;
    QMetaMethod m_method;
    std::array<QVariant, mostArguments> m_values;
    std::array<void *, mostArguments + 1> m_pointers{};
};

bool isNumber(const VARIANT &argument)
{
    switch (direct(argument).vt & ~VT_BYREF) {
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DECIMAL:
        return true;
    default:
        return false;
    }
}

// Chooses the overload by the number of arguments, then by whether the first one is a number.
const QMetaMethod *overloadFor(const Member &member, const Arguments &arguments)
{
    const QMetaMethod *best = nullptr;
    for (const QMetaMethod &method : member.methods) {
        if (static_cast<std::size_t>(method.parameterCount()) != arguments.size())
            continue;
        const bool exact =
            !arguments.empty() &&
            (method.parameterType(0) == (isNumber(*arguments[0]) ? QMetaType::Int : QMetaType::QString));
        if (!best || exact)
            best = &method;
    }
    return best;
}

// Calls the default member of the object that `member` returns for the arguments `leading`: with `rest`,
// which may be a value to assign.
HRESULT callDefaultMember(QObject &object, const Member &member, const DISPPARAMS &leading, WORD flags,
                          const DISPPARAMS &rest, VARIANT *result, EXCEPINFO *exception, UINT *badArgument);

HRESULT getOrCall(QObject &object, const Member &member, const DISPPARAMS &parameters, VARIANT *result,
                  EXCEPINFO *exception, UINT *badArgument)
{
    Arguments arguments;
    const HRESULT ordered = argumentsIn(parameters, arguments);
    if (FAILED(ordered))
        return ordered;

    QVariant answer;
    if (arguments.empty() && member.property.isValid()) {
        answer = member.property.read(&object);
    } else {
        const QMetaMethod *method = overloadFor(member, arguments);
        if (!method && member.property.metaType().flags() & QMetaType::PointerToQObject) {
            constexpr WORD read = DISPATCH_METHOD | DISPATCH_PROPERTYGET; // as scripts write both in one way
            return callDefaultMember(object, member, {}, read, parameters, result, exception, badArgument);
        }
        if (!method)
            return DISP_E_BADPARAMCOUNT;
        MethodCall call;
        const VARIANT *bad = nullptr;
        const HRESULT fits = call.prepare(*method, arguments, &bad);
        if (FAILED(fits)) {
            if (badArgument)
                *badArgument = placeOf(bad, parameters);
            return fits;
        }
        answer = call.run(object);
        if (method->returnMetaType().id() == QMetaType::Void) {
            if (result)
                VariantInit(result);
            return S_OK;
        }
    }
    return result ? fromQt(answer, result) : S_OK;
}

HRESULT callDefaultMember(QObject &object, const Member &member, const DISPPARAMS &leading, WORD flags,
                          const DISPPARAMS &rest, VARIANT *result, EXCEPINFO *exception, UINT *badArgument)
{
    Variant target;
    const HRESULT found = getOrCall(object, member, leading, target.get(), exception, badArgument);
    if (FAILED(found))
        return found;
    if (target->vt != VT_DISPATCH || !target->pdispVal)
        return DISP_E_MEMBERNOTFOUND;
    DISPPARAMS arguments = rest; // Invoke takes no const ones
    return target->pdispVal->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments, result,
                                    exception, badArgument);
}

HRESULT put(QObject &object, const Member &member, const DISPPARAMS &parameters, EXCEPINFO *exception,
            UINT *badArgument)
{
    if (parameters.cArgs == 0 || parameters.cNamedArgs > 1)
        return DISP_E_BADPARAMCOUNT;
    if (parameters.cArgs > 1) { // `records("name") = "Li"`
        DISPID named = DISPID_PROPERTYPUT;
        const DISPPARAMS leading{parameters.rgvarg + 1, nullptr, parameters.cArgs - 1, 0};
        const DISPPARAMS value{parameters.rgvarg, &named, 1, 1};
        return callDefaultMember(object, member, leading, DISPATCH_PROPERTYPUT, value, nullptr, exception,
                                 badArgument);
    }
    if (!member.property.isWritable())
        return DISP_E_MEMBERNOTFOUND;
    QVariant value;
    const HRESULT fits = toQt(parameters.rgvarg[0], member.property.metaType(), &value);
    if (FAILED(fits)) {
        if (badArgument)
            *badArgument = 0;
        return fits;
    }
    member.property.write(&object, value);
    return S_OK;
}

} // namespace

HRESULT metaCall(QObject &object, const Member &member, WORD flags, DISPPARAMS &parameters, VARIANT *result,
                 EXCEPINFO *exception, UINT *badArgument)
try {
    HostErrorCatcher errors(object);
    const HRESULT outcome = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)
                                ? put(object, member, parameters, exception, badArgument)
                                : getOrCall(object, member, parameters, result, exception, badArgument);
    if (errors.number() != 0) {
        if (SUCCEEDED(outcome) && result)
            VariantClear(result);
        return raise(errors.number(), errors.description(), exception);
    }
    return outcome;
} catch (const std::bad_alloc &) {
    return E_OUTOFMEMORY;
} catch (const std::exception &error) {
    qWarning("A call from a container failed: %s", error.what());
    return raise(E_FAIL, QString::fromUtf8(error.what()), exception);
}

HRESULT objectGone(EXCEPINFO *exception)
{
    return raise(RPC_E_DISCONNECTED, u"The object no longer exists."_s, exception);
}

} // namespace KOVAVSFDataGridLib::ActiveX
