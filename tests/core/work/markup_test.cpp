#include "work/markup.h"

#include <gtest/gtest.h>

namespace kalco {
namespace {

TEST(Markup, NestsElementsAndClosesThemInOrder) {
    Markup markup;
    markup.open("p").attribute("class", "a").attribute("n", 12).text("one ");
    markup.leaf("b", "two").open("br").end().text(" three").close();
    EXPECT_EQ(markup.result(), R"(<p class="a" n="12">one <b>two</b><br/> three</p>)");
}

TEST(Markup, KeepsEmptyElementsOpenUnlessTold) {
    Markup markup;
    markup.open("td").close().open("td").attribute("x", "y").close();
    EXPECT_EQ(markup.take(), R"(<td></td><td x="y"></td>)");
}

TEST(Markup, EscapesTextsAndValues) {
    Markup markup;
    markup.open("a").attribute("title", "\"<&>'").text("\"<&>'").raw("<i/>").close();
    EXPECT_EQ(markup.result(), R"(<a title="&quot;&lt;&amp;&gt;'">&quot;&lt;&amp;&gt;'<i/></a>)");
}

TEST(Markup, HasNoFormForControlCharacters) {
    EXPECT_EQ(escaped(std::string_view("a\0b\x1B\rc\td\n\x7F", 9)), "a\uFFFDb\uFFFD\uFFFDc\td\n");
    EXPECT_EQ(escaped("Peña"), "Peña");
}

}  // namespace
}  // namespace kalco
