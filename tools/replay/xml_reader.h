// Reads an XML text piece by piece: elements with their namespaces, and the text between.
#pragma once

#include "xml_cursor.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::replay {

struct XmlAttribute {
    std::string name; // as it is written, with its prefix
    std::string value;
};

struct XmlEvent {
    enum class Kind { Start, Text, End, EndOfFile };

    // The value of an attribute, or null.
    const std::string* Find(std::string_view attribute) const;

    Kind kind = Kind::EndOfFile;
    std::size_t line = 0;
    std::string name;  // of an element, without its prefix
    std::string space; // its namespace
    std::vector<XmlAttribute> attributes;
    std::string text;
};

inline constexpr std::size_t MaxXmlDepth = 100;

// Throws RecordingFault where the text is not well-formed. A document type declaration is stepped over, one
// with declarations inside is refused: nothing is ever expanded but characters and the five entities that XML
// has itself.
class XmlReader {
public:
    explicit XmlReader(std::string_view text) : cursor(text) {}

    XmlEvent Next();

    // Where the cursor is behind a start, steps over all up to the end of that element.
    void SkipElement();

private:
    struct OpenElement {
        std::string name; // as it is written
        std::size_t line = 0;
        std::size_t namespaces = 0; // how many were declared outside of it
    };
    struct Namespace {
        std::string prefix;
        std::string uri;
    };

    std::optional<XmlEvent> NextPiece_();
    XmlEvent Text_(std::size_t line, std::string text) const;
    XmlEvent StartTag_();
    XmlEvent EndTag_();
    XmlEvent End_();
    XmlEvent EndOfFile_() const;
    std::vector<XmlAttribute> Attributes_();
    std::string AttributeValue_();
    void SkipDocumentType_();
    void Open_(std::string_view writtenName, std::size_t line, const std::vector<XmlAttribute>& attributes);
    std::string Resolve_(const std::string& prefix) const;

    XmlCursor cursor;
    std::vector<OpenElement> open;
    std::vector<Namespace> namespaces;
    bool rootSeen = false;
    bool endsAtOnce = false; // the element that was opened last is empty
};

} // namespace lumora::replay
