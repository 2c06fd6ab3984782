#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace Merivane::Tests {

/// An environment variable that has another value, or none, for the time of a test.
class Variable {
public:
    Variable(const std::string& variableName, const std::optional<std::string>& value)
        : name(variableName) {
        if (const char* old = std::getenv(name.c_str())) {
            before = old;
        }
        Set(value);
    }
    ~Variable() { Set(before); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    void Set(const std::optional<std::string>& value) const {
        if (value) {
            ::setenv(name.c_str(), value->c_str(), 1);
        } else {
            ::unsetenv(name.c_str());
        }
    }

    std::string name;
    std::optional<std::string> before;
};

} // namespace Merivane::Tests
