#pragma once

#include "Printing.h"

#include "ado/Error.h"

#include <gtest/gtest.h>

namespace AdoTest {

// The Error that `action` throws; fails the test if it throws nothing.
template<typename Action>
ADODB::Error errorOf(Action &&action)
{
    try {
        action();
    } catch (const ADODB::Error &error) {
        return error;
    }
    ADD_FAILURE() << "nothing was thrown";
    return ADODB::Error(ADODB::dbErrFailed, QStringLiteral("nothing was thrown"));
}

} // namespace AdoTest

// Both also show the message, so a wrong error is easy to tell.
#define EXPECT_ADO_ERROR(code, action)                                                                       \
    do {                                                                                                     \
        const ADODB::Error thrown = AdoTest::errorOf([&] { action; });                                       \
        EXPECT_TRUE(thrown.is(code)) << std::hex << thrown.Number() << ' ' << thrown.what();                 \
        EXPECT_FALSE(thrown.Description().isEmpty());                                                        \
    } while (false)
