// The one exception of the package library. Every failure of reading or
// writing a package, of its zip or folder below it, and of parsing its XML
// comes out as an opc::Exception whose what() says what went wrong and where.
#pragma once

#include <exception>
#include <string>

namespace opc {

class Exception : public std::exception {
public:
    explicit Exception(std::string message) : message_(std::move(message)) {}
    char const* what() const noexcept override { return message_.c_str(); }

private:
    std::string message_;
};

}  // namespace opc
