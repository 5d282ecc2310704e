// Value objects of the package model: part names, content types, URIs and
// the storage options of a new part.
#pragma once

#include <cstddef>
#include <string>

namespace opc {
namespace model {

// An absolute part name, as "/ppt/slides/slide1.xml". Names compare as OPC
// says: ASCII letters without regard to case, %XX escapes as the byte.
class PartName {
public:
    PartName() = default;
    explicit PartName(std::u16string name) : name_(std::move(name)) {}

    std::u16string const& toString() const { return name_; }
    // Why the name can't name a new part, or empty text if it can.
    std::string validationProblem() const;

    friend bool operator==(PartName const& a, PartName const& b);
    friend bool operator!=(PartName const& a, PartName const& b) { return !(a == b); }

private:
    std::u16string name_;
};

class ContentType {
public:
    ContentType() = default;
    explicit ContentType(std::u16string type) : type_(std::move(type)) {}
    std::u16string const& toString() const { return type_; }
    friend bool operator==(ContentType const& a, ContentType const& b) { return a.type_ == b.type_; }
    friend bool operator!=(ContentType const& a, ContentType const& b) { return !(a == b); }

private:
    std::u16string type_;
};

// A URI reference as text. Relationship targets inside the package are held
// absolute ("/ppt/media/image1.png"); external ones as written.
class URI {
public:
    URI() = default;
    explicit URI(std::u16string text) : text_(std::move(text)) {}
    std::u16string const& toString() const { return text_; }
    // The path alone: without scheme, authority, query and fragment.
    std::u16string getPath() const;
    friend bool operator==(URI const& a, URI const& b) { return a.text_ == b.text_; }

private:
    std::u16string text_;
};

// How a new part is stored: compression 0 stores it as it is, any other
// value deflates it as zip tools ordinarily do. The size hint only helps
// buffering.
class StandardPartInfo {
public:
    StandardPartInfo(int compressionType = 1, std::size_t sizeHint = 0)
        : compressionType_(compressionType), sizeHint_(sizeHint) {}
    int getCompressionType() const { return compressionType_; }
    std::size_t getSizeHint() const { return sizeHint_; }

private:
    int compressionType_;
    std::size_t sizeHint_;
};

}  // namespace model
}  // namespace opc
