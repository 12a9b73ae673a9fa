// The order of an XML text: what may stand where, which end belongs to which start, which prefix to which
// namespace.
#include "xml_reader.h"
#include "number_text.h"

#include <algorithm>

namespace lumora::replay {

const std::string* XmlEvent::Find(std::string_view attribute) const
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [attribute](const XmlAttribute& a) { return a.name == attribute; });
    return found != attributes.end() ? &found->value : nullptr;
}

XmlEvent XmlReader::Next()
{
    for (;;) {
        if (std::optional<XmlEvent> event = NextPiece_()) {
            return std::move(*event);
        }
    }
}

void XmlReader::SkipElement()
{
    for (std::size_t depth = 1; depth != 0;) {
        const XmlEvent::Kind kind = Next().kind;
        depth += kind == XmlEvent::Kind::Start ? 1U : 0U;
        depth -= kind == XmlEvent::Kind::End ? 1U : 0U;
    }
}

// Nothing for what says nothing, such as a comment.
std::optional<XmlEvent> XmlReader::NextPiece_()
{
    if (endsAtOnce) {
        endsAtOnce = false;
        return End_();
    }
    if (cursor.AtEnd()) {
        return EndOfFile_();
    }
    const std::size_t line = cursor.Line();
    if (cursor.Skip("<!--")) {
        cursor.TakeBefore("-->", "a comment");
        return std::nullopt;
    }
    if (cursor.Skip("<?")) {
        cursor.TakeBefore("?>", "a processing instruction");
        return std::nullopt;
    }
    if (cursor.Skip("<!DOCTYPE")) {
        SkipDocumentType_();
        return std::nullopt;
    }
    if (cursor.Skip("<![CDATA[")) {
        return Text_(line, std::string(cursor.TakeBefore("]]>", "a CDATA section")));
    }
    if (cursor.Skip("</")) {
        return EndTag_();
    }
    if (cursor.Skip("<")) {
        return StartTag_();
    }
    if (cursor.StartsWith("&")) {
        return Text_(line, cursor.TakeReference());
    }
    const std::string_view text = cursor.TakeUntilAny("<&");
    if (open.empty() && IsXmlBlank(text)) {
        return std::nullopt;
    }
    return Text_(line, std::string(text));
}

XmlEvent XmlReader::Text_(std::size_t line, std::string text) const
{
    if (open.empty()) {
        throw RecordingFault(line, "text stands outside of the outermost element: " + Quoted(text));
    }
    XmlEvent event;
    event.kind = XmlEvent::Kind::Text;
    event.line = line;
    event.text = std::move(text);
    return event;
}

XmlEvent XmlReader::StartTag_()
{
    XmlEvent event;
    event.kind = XmlEvent::Kind::Start;
    event.line = cursor.Line();
    const std::string_view written = cursor.TakeName();
    event.attributes = Attributes_();
    endsAtOnce = cursor.Skip("/");
    if (!cursor.Skip(">")) {
        cursor.Fail("the tag <" + std::string(written) + "> has no end");
    }
    Open_(written, event.line, event.attributes);
    const std::size_t colon = written.find(':');
    const bool prefixed = colon != std::string_view::npos;
    event.name = written.substr(prefixed ? colon + 1 : 0);
    event.space = Resolve_(std::string(written.substr(0, prefixed ? colon : 0)));
    return event;
}

XmlEvent XmlReader::EndTag_()
{
    const std::string_view name = cursor.TakeName();
    cursor.SkipBlanks();
    if (!cursor.Skip(">")) {
        cursor.Fail("the tag </" + std::string(name) + "> has no end");
    }
    if (open.empty()) {
        cursor.Fail("</" + std::string(name) + "> ends nothing");
    }
    if (open.back().name != name) {
        cursor.Fail("</" + std::string(name) + "> stands where <" + open.back().name + "> of line " +
                    std::to_string(open.back().line) + " has to end");
    }
    return End_();
}

XmlEvent XmlReader::End_()
{
    namespaces.resize(open.back().namespaces);
    open.pop_back();
    XmlEvent event;
    event.kind = XmlEvent::Kind::End;
    event.line = cursor.Line();
    return event;
}

XmlEvent XmlReader::EndOfFile_() const
{
    if (!open.empty()) {
        cursor.Fail("the file ends inside of <" + open.back().name + "> of line " +
                    std::to_string(open.back().line));
    }
    if (!rootSeen) {
        cursor.Fail("the file has no element");
    }
    XmlEvent event;
    event.line = cursor.Line();
    return event;
}

std::vector<XmlAttribute> XmlReader::Attributes_()
{
    std::vector<XmlAttribute> attributes;
    while (cursor.SkipBlanks() && !cursor.AtEnd() && !cursor.StartsWith("/") && !cursor.StartsWith(">")) {
        std::string name(cursor.TakeName());
        cursor.SkipBlanks();
        if (!cursor.Skip("=")) {
            cursor.Fail("the attribute " + name + " has no value");
        }
        cursor.SkipBlanks();
        const auto sameName = [&name](const XmlAttribute& other) { return other.name == name; };
        if (std::any_of(attributes.begin(), attributes.end(), sameName)) {
            cursor.Fail("the attribute " + name + " stands twice in one tag");
        }
        std::string value = AttributeValue_();
        attributes.push_back({std::move(name), std::move(value)});
    }
    return attributes;
}

std::string XmlReader::AttributeValue_()
{
    const bool single = cursor.StartsWith("'");
    const std::string_view quote = single ? "'" : "\"";
    if (!cursor.Skip(quote)) {
        cursor.Fail("the value of an attribute stands in quotation marks");
    }
    std::string value;
    for (;;) {
        value += cursor.TakeUntilAny(single ? "'<&" : "\"<&");
        if (cursor.Skip(quote)) {
            return value;
        }
        if (!cursor.StartsWith("&")) {
            cursor.Fail("the value of an attribute has no end");
        }
        value += cursor.TakeReference();
    }
}

void XmlReader::SkipDocumentType_()
{
    if (rootSeen) {
        cursor.Fail("a document type declaration stands before the outermost element");
    }
    for (;;) {
        cursor.TakeUntilAny("\"'[>");
        if (cursor.Skip(">")) {
            return;
        }
        if (cursor.Skip("\"")) {
            cursor.TakeBefore("\"", "the document type declaration");
        } else if (cursor.Skip("'")) {
            cursor.TakeBefore("'", "the document type declaration");
        } else if (cursor.AtEnd()) {
            cursor.Fail("the document type declaration has no end");
        } else {
            cursor.Fail("a document type declaration with declarations inside is not read");
        }
    }
}

void XmlReader::Open_(std::string_view writtenName, std::size_t line,
                      const std::vector<XmlAttribute>& attributes)
{
    constexpr std::string_view Declares = "xmlns";
    if (open.empty() && rootSeen) {
        cursor.Fail("a second outermost element: <" + std::string(writtenName) + ">");
    }
    if (open.size() == MaxXmlDepth) {
        cursor.Fail("elements are nested more than " + std::to_string(MaxXmlDepth) + " deep");
    }
    rootSeen = true;
    open.push_back({std::string(writtenName), line, namespaces.size()});
    for (const XmlAttribute& attribute : attributes) {
        if (attribute.name == Declares) {
            namespaces.push_back({"", attribute.value});
        } else if (attribute.name.starts_with("xmlns:")) {
            namespaces.push_back({attribute.name.substr(Declares.size() + 1), attribute.value});
        }
    }
}

std::string XmlReader::Resolve_(const std::string& prefix) const
{
    const auto found = std::find_if(namespaces.rbegin(), namespaces.rend(),
                                    [&prefix](const Namespace& known) { return known.prefix == prefix; });
    if (found != namespaces.rend()) {
        return found->uri;
    }
    if (!prefix.empty()) {
        cursor.Fail("no namespace has the prefix " + Quoted(prefix));
    }
    return {};
}

} // namespace lumora::replay
