// The XML reader: what it makes of a text, and the line and reason of every kind of damage.
#include "xml_reader.h"

#include <gmock/gmock.h>

#include <tuple>

namespace lumora::replay {
namespace {

using testing::HasSubstr;

// All events in one line: <name> or <{namespace}name>, attributes in brackets, text as it is, </>.
std::string Events(const std::string& text)
{
    XmlReader reader(text);
    std::string events;
    for (XmlEvent event = reader.Next(); event.kind != XmlEvent::Kind::EndOfFile; event = reader.Next()) {
        if (event.kind == XmlEvent::Kind::Start) {
            events += "<" + (event.space.empty() ? "" : "{" + event.space + "}") + event.name;
            for (const XmlAttribute& attribute : event.attributes) {
                events += "[" + attribute.name + "=" + attribute.value + "]";
            }
            events += ">";
        } else {
            events += event.kind == XmlEvent::Kind::End ? "</>" : event.text;
        }
    }
    return events;
}

TEST(Xml, ElementsAndText) { EXPECT_EQ(Events("<a>one<b>two</b>three</a>"), "<a>one<b>two</>three</>"); }

TEST(Xml, EmptyElementEndsAtOnce) { EXPECT_EQ(Events("<a><b/><c /></a>"), "<a><b></><c></></>"); }

TEST(Xml, AttributesInBothKindsOfQuotes)
{
    EXPECT_EQ(Events("<a x = \"it's\"\n y='\"'/>"), "<a[x=it's][y=\"]></>");
}

TEST(Xml, EndTagMayHoldBlanks) { EXPECT_EQ(Events("<a></a \n>"), "<a></>"); }

TEST(Xml, EntitiesInTextAndAttributes)
{
    EXPECT_EQ(Events("<a x='&lt;&#65;'>&amp;&gt;&quot;&apos;&#x42;</a>"), "<a[x=<A]>&>\"'B</>");
}

TEST(Xml, CharactersBeyondAsciiAreUtf8)
{
    EXPECT_EQ(Events("<a>&#xe9;&#8364;&#x1F58A;</a>"), "<a>\xC3\xA9\xE2\x82\xAC\xF0\x9F\x96\x8A</>");
}

TEST(Xml, CommentsAndInstructionsAreSteppedOver)
{
    EXPECT_EQ(Events("<?xml version='1.0'?>\n<!-- <b> --><a>1<!-- & -->2<?go <c>?>3</a>\n<!-- end -->"),
              "<a>123</>");
}

TEST(Xml, CdataIsTextAsItIs) { EXPECT_EQ(Events("<a><![CDATA[<b>&amp;]]></a>"), "<a><b>&amp;</>"); }

TEST(Xml, DocumentTypeIsSteppedOver)
{
    EXPECT_EQ(Events("<!DOCTYPE a PUBLIC \"-//x>\" 'y>z'>\n<a/>"), "<a></>");
}

TEST(Xml, PrefixesStandForNamespaces)
{
    EXPECT_EQ(Events("<p:a xmlns:p='urn:p'><p:b/><c/></p:a>"),
              "<{urn:p}a[xmlns:p=urn:p]><{urn:p}b></><c></></>");
}

TEST(Xml, NamespaceHoldsUpToTheEndOfItsElement)
{
    EXPECT_EQ(Events("<a><b xmlns='urn:b'><c/></b><d/></a>"),
              "<a><{urn:b}b[xmlns=urn:b]><{urn:b}c></></><d></></>");
}

TEST(Xml, InnerNamespaceCoversTheOuterOne)
{
    EXPECT_EQ(Events("<a xmlns='urn:a'><b xmlns=''/><c/></a>"),
              "<{urn:a}a[xmlns=urn:a]><b[xmlns=]></><{urn:a}c></></>");
}

TEST(Xml, EventsKnowTheirLines)
{
    XmlReader reader("\n<a>\n\n1\n<b/>");
    EXPECT_EQ(reader.Next().line, 2U);
    EXPECT_EQ(reader.Next().line, 2U); // the text begins behind the tag
    EXPECT_EQ(reader.Next().line, 5U);
}

TEST(Xml, SkippedElementIsGoneWithAllThatIsInIt)
{
    XmlReader reader("<a><b><c>1</c><d/></b>2</a>");
    reader.Next();
    reader.Next();
    reader.SkipElement();
    EXPECT_EQ(reader.Next().text, "2");
}

std::string Nested(std::size_t depth)
{
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) {
        text += "<a>";
    }
    for (std::size_t i = 0; i < depth; ++i) {
        text += "</a>";
    }
    return text;
}

TEST(Xml, DeepestNestingIsRead) { EXPECT_EQ(Events(Nested(MaxXmlDepth)).size(), MaxXmlDepth * 6); }

using Damage = std::tuple<std::string, std::size_t, std::string>;

class XmlDamage : public testing::TestWithParam<Damage> {};

TEST_P(XmlDamage, IsToldWithItsLine)
{
    const auto& [text, line, reason] = GetParam();
    try {
        ADD_FAILURE() << "read as " << Events(text);
    } catch (const RecordingFault& fault) {
        EXPECT_EQ(fault.line, line);
        EXPECT_THAT(fault.what(), HasSubstr(reason));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Tags, XmlDamage,
    testing::Values(
        Damage{"", 1, "the file has no element"}, Damage{"<!-- a -->\n", 2, "the file has no element"},
        Damage{"<a>\n<b>\n", 3, "the file ends inside of <b> of line 2"},
        Damage{"<a>\n<b>\n</a>", 3, "</a> stands where <b> of line 2 has to end"},
        Damage{"<a/>\n</a>", 2, "</a> ends nothing"},
        Damage{"<a/>\n<b/>", 2, "a second outermost element: <b>"}, Damage{"<a", 1, "the tag <a> has no end"},
        Damage{"<a></a", 1, "the tag </a> has no end"}, Damage{"<a / >", 1, "the tag <a> has no end"},
        Damage{"< a/>", 1, "a name is expected here"},
        Damage{"<1/>", 1, "a name is expected here, not \"1\""},
        Damage{"<a;b/>", 1, "a name is expected here, not \"a;b\""},
        Damage{"one<a/>", 1, "text stands outside of the outermost element: \"one\""},
        Damage{"<a/>\n\none", 1, "text stands outside"}, Damage{"<a/>&amp;", 1, "text stands outside"},
        Damage{"<p:a/>", 1, "no namespace has the prefix \"p\""},
        Damage{Nested(MaxXmlDepth + 1), 1, "nested more than 100 deep"}));

INSTANTIATE_TEST_SUITE_P(Attributes, XmlDamage,
                         testing::Values(Damage{"<a\nx/>", 2, "the attribute x has no value"},
                                         Damage{"<a x=1/>", 1, "stands in quotation marks"},
                                         Damage{"<a x='1\n/>", 2, "the value of an attribute has no end"},
                                         Damage{"<a x='<'/>", 1, "the value of an attribute has no end"},
                                         Damage{"<a x='1' x='2'/>", 1,
                                                "the attribute x stands twice in one tag"},
                                         Damage{"<a x='1'y='2'/>", 1, "the tag <a> has no end"}));

INSTANTIATE_TEST_SUITE_P(Rest, XmlDamage,
                         testing::Values(Damage{"<a>\n&b;</a>", 2, "there is no entity \"&b;\""},
                                         Damage{"<a>& </a>", 1, "there is no entity \"&;\""},
                                         Damage{"<a>&lt</a>", 1, "there is no entity \"&lt;\""},
                                         Damage{"<a>&#0;</a>", 1, "there is no entity \"&#0;\""},
                                         Damage{"<a>&#xD800;</a>", 1, "there is no entity"},
                                         Damage{"<a>&#x110000;</a>", 1, "there is no entity"},
                                         Damage{"<a>&#;</a>", 1, "there is no entity"},
                                         Damage{"<a x='&b;'/>", 1, "there is no entity \"&b;\""},
                                         Damage{"<a>\n<!-- b", 2, "a comment has no end"},
                                         Damage{"<?xml", 1, "a processing instruction has no end"},
                                         Damage{"<a><![CDATA[b", 1, "a CDATA section has no end"},
                                         Damage{"<!DOCTYPE a", 1, "the document type declaration has no end"},
                                         Damage{"<!DOCTYPE a \"b", 1,
                                                "the document type declaration has no end"},
                                         Damage{"<a/><!DOCTYPE a>", 1, "stands before the outermost element"},
                                         Damage{"<!DOCTYPE a [\n<!ENTITY b 'c'>]><a/>", 1,
                                                "with declarations inside is not read"}));

} // namespace
} // namespace lumora::replay
