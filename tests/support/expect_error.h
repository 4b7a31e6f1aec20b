#pragma once
// Checks that a call throws exactly the expected exception type with the expected message.

#include <gtest/gtest.h>

#include <exception>
#include <string_view>
#include <typeinfo>

namespace kelvane_test {

template <class Error, class Call>
::testing::AssertionResult throws_error(Call&& call, std::string_view text) {
    try {
        call();
    } catch (const std::exception& error) {
        if (typeid(error) != typeid(Error))
            return ::testing::AssertionFailure() << "threw " << typeid(error).name() << " with '"
                                                 << error.what() << "' instead of " << typeid(Error).name();
        if (error.what() != text)
            return ::testing::AssertionFailure()
                   << "message '" << error.what() << "' instead of '" << text << "'";
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "nothing thrown; expected '" << text << "'";
}

template <class Error, class Call>
void expect_error(Call&& call, std::string_view text) {
    EXPECT_TRUE(throws_error<Error>(call, text));
}

}  // namespace kelvane_test

#define EXPECT_ERROR(kind, statement, text) \
    EXPECT_TRUE(::kelvane_test::throws_error<kind>([&] { (void)(statement); }, text))
