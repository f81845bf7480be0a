#pragma once
// Environment variables set for the length of one test, given back afterwards, so that the
// platform tests can point the trash and the desktop folders at scratch folders.

#include <cstdlib>
#include <optional>
#include <string>

namespace vardena::test {

class EnvVar {
public:
    EnvVar(std::string name, const std::string& value) : name_(std::move(name))
    {
        if (const char* old = std::getenv(name_.c_str()))
            old_ = old;
        ::setenv(name_.c_str(), value.c_str(), 1);
    }
    ~EnvVar()
    {
        if (old_)
            ::setenv(name_.c_str(), old_->c_str(), 1);
        else
            ::unsetenv(name_.c_str());
    }
    EnvVar(const EnvVar&) = delete;
    EnvVar& operator=(const EnvVar&) = delete;

private:
    std::string name_;
    std::optional<std::string> old_;
};

}  // namespace vardena::test
