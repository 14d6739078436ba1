// The file of property sheets that comes with the program: what it holds, against tables of the two languages' standards.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "core/text.h"
#include "tags/propertyfile.h"
#include "tags/propertysource.h"

namespace morlan {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::istringstream stream{std::string(text)};
  return {std::istream_iterator<std::string>(stream), {}};
}

const PropertyFile& Shipped() {
  static const PropertyFile file(BytesOf(MORLAN7_TREE "/Morlan7.tpf"));
  return file;
}

const std::vector<ParamRecord>& ParamsOf(std::string_view tag) {
  static std::map<std::string, std::vector<ParamRecord>, std::less<>> known;
  const auto [at, isNew] = known.try_emplace(std::string(tag));
  if (isNew) at->second = Shipped().Params(Shipped().FindTag(tag)).value_or(std::vector<ParamRecord>());
  return at->second;
}

const ParamRecord* ParamOf(std::string_view tag, std::string_view name) {
  const auto& params = ParamsOf(tag);
  const auto found = std::find_if(params.begin(), params.end(), [name](const ParamRecord& param) { return param.name == name; });
  return found == params.end() ? nullptr : &*found;
}

// The names of a table that a tag lacks.
std::string Missing(std::string_view tag, std::string_view names) {
  std::string missing;
  for (const std::string& name : WordsOf(names))
    if (!ParamOf(tag, name)) missing += name + " ";
  return missing;
}

struct Element {
  const char* tag;
  const char* attributes;
};

// HTML 4.01, its deprecated parts and frames included; what all elements share stands below.
constexpr Element kHtml4[] = {
    {"a", "charset type name href hreflang rel rev accesskey shape coords tabindex onfocus onblur target"},
    {"abbr", ""},
    {"acronym", ""},
    {"address", ""},
    {"applet", "codebase archive code object alt name width height align hspace vspace"},
    {"area", "shape coords href nohref alt tabindex accesskey onfocus onblur target"},
    {"b", ""},
    {"base", "href target"},
    {"basefont", "size color face"},
    {"bdo", "lang dir"},
    {"big", ""},
    {"blockquote", "cite"},
    {"body", "onload onunload background text link vlink alink bgcolor"},
    {"br", "clear"},
    {"button", "name value type disabled tabindex accesskey onfocus onblur"},
    {"caption", "align"},
    {"center", ""},
    {"cite", ""},
    {"code", ""},
    {"col", "span width align char charoff valign"},
    {"colgroup", "span width align char charoff valign"},
    {"dd", ""},
    {"del", "cite datetime"},
    {"dfn", ""},
    {"dir", "compact"},
    {"div", "align"},
    {"dl", "compact"},
    {"dt", ""},
    {"em", ""},
    {"fieldset", ""},
    {"font", "size color face"},
    {"form", "action method enctype accept name onsubmit onreset accept-charset target"},
    {"frame", "longdesc name src frameborder marginwidth marginheight noresize scrolling"},
    {"frameset", "rows cols onload onunload"},
    {"h1", "align"},
    {"h2", "align"},
    {"h3", "align"},
    {"h4", "align"},
    {"h5", "align"},
    {"h6", "align"},
    {"head", "profile"},
    {"hr", "align noshade size width"},
    {"html", "version lang dir"},
    {"i", ""},
    {"iframe", "longdesc name src frameborder marginwidth marginheight scrolling align height width"},
    {"img", "src alt longdesc name height width usemap ismap align border hspace vspace"},
    {"input",
     "type name value checked disabled readonly size maxlength src alt usemap ismap tabindex accesskey onfocus onblur onselect onchange "
     "accept align"},
    {"ins", "cite datetime"},
    {"isindex", "prompt"},
    {"kbd", ""},
    {"label", "for accesskey onfocus onblur"},
    {"legend", "accesskey align"},
    {"li", "type value"},
    {"link", "charset href hreflang type rel rev media target"},
    {"map", "name"},
    {"menu", "compact"},
    {"meta", "http-equiv name content scheme"},
    {"noframes", ""},
    {"noscript", ""},
    {"object", "declare classid codebase data type codetype archive standby height width usemap name tabindex align border hspace vspace"},
    {"ol", "type compact start"},
    {"optgroup", "disabled label"},
    {"option", "selected disabled label value"},
    {"p", "align"},
    {"param", "name value valuetype type"},
    {"pre", "width"},
    {"q", "cite"},
    {"s", ""},
    {"samp", ""},
    {"script", "charset type language src defer event for"},
    {"select", "name size multiple disabled tabindex onfocus onblur onchange"},
    {"small", ""},
    {"span", ""},
    {"strike", ""},
    {"strong", ""},
    {"style", "type media title"},
    {"sub", ""},
    {"sup", ""},
    {"table", "summary width border frame rules cellspacing cellpadding align bgcolor"},
    {"tbody", "align char charoff valign"},
    {"td", "abbr axis headers scope rowspan colspan align char charoff valign nowrap bgcolor width height"},
    {"textarea", "name rows cols disabled readonly tabindex accesskey onfocus onblur onselect onchange"},
    {"tfoot", "align char charoff valign"},
    {"th", "abbr axis headers scope rowspan colspan align char charoff valign nowrap bgcolor width height"},
    {"thead", "align char charoff valign"},
    {"title", ""},
    {"tr", "align char charoff valign bgcolor"},
    {"tt", ""},
    {"u", ""},
    {"ul", "type compact"},
    {"var", ""},
};

// What the living standard has beyond that: newer elements, newer attributes of older ones, and old elements of browsers.
constexpr Element kLiving[] = {
    {"a", "download ping referrerpolicy"},
    {"area", "download ping referrerpolicy rel"},
    {"article", ""},
    {"aside", ""},
    {"audio", "src crossorigin preload loading autoplay loop muted controls"},
    {"bdi", ""},
    {"bgsound", "src loop"},
    {"blink", ""},
    {"body",
     "onafterprint onbeforeprint onbeforeunload onhashchange onlanguagechange onmessage onmessageerror onoffline ononline onpagehide "
     "onpagereveal onpageshow onpageswap onpopstate onrejectionhandled onstorage onunhandledrejection"},
    {"button", "command commandfor form formaction formenctype formmethod formnovalidate formtarget popovertarget popovertargetaction"},
    {"canvas", "width height"},
    {"data", "value"},
    {"datalist", ""},
    {"details", "name open"},
    {"dialog", "closedby open"},
    {"embed", "src type width height"},
    {"fieldset", "disabled form name"},
    {"figcaption", ""},
    {"figure", ""},
    {"footer", ""},
    {"form", "autocomplete novalidate rel"},
    {"header", ""},
    {"hgroup", ""},
    {"iframe", "srcdoc sandbox allow allowfullscreen referrerpolicy loading"},
    {"image", ""},
    {"img", "srcset sizes crossorigin referrerpolicy decoding loading fetchpriority"},
    {"input",
     "alpha autocomplete colorspace dirname form formaction formenctype formmethod formnovalidate formtarget height list max min minlength "
     "multiple pattern placeholder popovertarget popovertargetaction required step width"},
    {"keygen", ""},
    {"link", "as blocking color crossorigin disabled fetchpriority imagesizes imagesrcset integrity referrerpolicy sizes"},
    {"listing", ""},
    {"main", ""},
    {"mark", ""},
    {"marquee", "behavior bgcolor direction height hspace loop scrollamount scrolldelay truespeed vspace width"},
    {"math", ""},
    {"menuitem", ""},
    {"meta", "charset media"},
    {"meter", "value min max low high optimum"},
    {"multicol", ""},
    {"nav", ""},
    {"nextid", ""},
    {"nobr", ""},
    {"noembed", ""},
    {"object", "form"},
    {"ol", "reversed"},
    {"output", "for form name"},
    {"picture", ""},
    {"plaintext", ""},
    {"progress", "value max"},
    {"rb", ""},
    {"rp", ""},
    {"rt", ""},
    {"rtc", ""},
    {"ruby", ""},
    {"script", "async blocking crossorigin fetchpriority integrity nomodule referrerpolicy"},
    {"search", ""},
    {"section", ""},
    {"select", "autocomplete form required"},
    {"selectedcontent", ""},
    {"slot", "name"},
    {"source", "src type media srcset sizes width height"},
    {"spacer", ""},
    {"style", "blocking"},
    {"summary", ""},
    {"svg", ""},
    {"template", "shadowrootmode shadowrootdelegatesfocus shadowrootclonable shadowrootserializable shadowrootcustomelementregistry"},
    {"textarea", "autocomplete dirname form maxlength minlength placeholder required wrap"},
    {"time", "datetime"},
    {"track", "kind src srclang label default"},
    {"video", "src crossorigin poster preload loading autoplay playsinline loop muted controls width height"},
    {"wbr", ""},
    {"xmp", ""},
};

constexpr std::string_view kGlobal =
    "accesskey autocapitalize autocorrect autofocus class contenteditable dir draggable enterkeyhint headingoffset headingreset hidden id "
    "inert inputmode is itemid itemprop itemref itemscope itemtype lang nonce popover slot spellcheck style tabindex title translate "
    "writingsuggestions";

constexpr std::string_view kGlobalEvents =
    "onabort onauxclick onbeforeinput onbeforematch onbeforetoggle onblur oncancel oncanplay oncanplaythrough onchange onclick onclose "
    "oncommand oncontextlost oncontextmenu oncontextrestored oncopy oncuechange oncut ondblclick ondrag ondragend ondragenter ondragleave "
    "ondragover ondragstart ondrop ondurationchange onemptied onended onerror onfocus onformdata oninput oninvalid onkeydown onkeypress "
    "onkeyup onload onloadeddata onloadedmetadata onloadstart onmousedown onmouseenter onmouseleave onmousemove onmouseout onmouseover "
    "onmouseup onpaste onpause onplay onplaying onprogress onratechange onreset onresize onscroll onscrollend onsecuritypolicyviolation "
    "onseeked onseeking onselect onslotchange onstalled onsubmit onsuspend ontimeupdate ontoggle onvolumechange onwaiting onwheel";

void ExpectElements(const Element* begin, const Element* end) {
  for (const Element* element = begin; element != end; ++element) {
    EXPECT_NE(Shipped().FindTag(element->tag), 0u) << element->tag;
    EXPECT_EQ(Missing(element->tag, element->attributes), "") << element->tag;
  }
}

TEST(ShippedSheets, HoldAllOfHtml4) { ExpectElements(std::begin(kHtml4), std::end(kHtml4)); }

TEST(ShippedSheets, HoldAllOfTheLivingStandard) { ExpectElements(std::begin(kLiving), std::end(kLiving)); }

TEST(ShippedSheets, EachTagHasAllThatIsCommonToTags) {
  for (const TagRecord& tag : Shipped().Tags()) {
    EXPECT_EQ(Missing(tag.name, kGlobal), "") << tag.name;
    EXPECT_EQ(Missing(tag.name, kGlobalEvents), "") << tag.name;
  }
}

TEST(ShippedSheets, EachTagHasATextAboutIt) {
  for (const TagRecord& tag : Shipped().Tags()) EXPECT_GE(tag.info.size(), 4u) << tag.name;
}

TEST(ShippedSheets, NamesAreSmallLettersAndStandOnceInATag) {
  for (const TagRecord& tag : Shipped().Tags()) {
    EXPECT_EQ(tag.name, LowerCase(tag.name));
    std::set<std::string> names;
    for (const ParamRecord& param : ParamsOf(tag.name)) {
      EXPECT_EQ(param.name, LowerCase(param.name)) << tag.name;
      EXPECT_TRUE(names.insert(param.name).second) << tag.name << " " << param.name;
    }
  }
}

TEST(ShippedSheets, EventsAndOnlyTheyBeginWithOn) {
  for (const TagRecord& tag : Shipped().Tags())
    for (const ParamRecord& param : ParamsOf(tag.name))
      EXPECT_EQ(param.kind == ParamKind::Event, param.name.starts_with("on")) << tag.name << " " << param.name;
}

TEST(ShippedSheets, ListsHaveValuesThatDifferAndFilesThatAreShipped) {
  for (const TagRecord& tag : Shipped().Tags()) {
    for (const ParamRecord& param : ParamsOf(tag.name)) {
      const std::string place = Concat({tag.name, " ", param.name});
      if (param.kind == ParamKind::List) {
        EXPECT_FALSE(param.values.empty()) << place;
        EXPECT_EQ(std::set<std::string>(param.values.begin(), param.values.end()).size(), param.values.size()) << place;
      }
      if (param.kind == ParamKind::ListFromFile) {
        EXPECT_TRUE(fs::exists(fs::path(MORLAN7_TREE "/Listy") / (param.listFile + ".lst"))) << place;
      }
    }
  }
}

TEST(ShippedSheets, ADefaultIsOneOfTheListsValues) {
  for (const TagRecord& tag : Shipped().Tags()) {
    for (const ParamRecord& param : ParamsOf(tag.name)) {
      if (param.kind != ParamKind::List || param.defaultValue.empty()) continue;
      EXPECT_EQ(std::count(param.values.begin(), param.values.end(), param.defaultValue), 1) << tag.name << " " << param.name;
    }
  }
}

TEST(ShippedSheets, AllIsBuiltIn) {
  for (const TagRecord& tag : Shipped().Tags())
    for (const ParamRecord& param : ParamsOf(tag.name)) EXPECT_TRUE(param.builtIn) << tag.name << " " << param.name;
}

struct Sample {
  const char* tag;
  const char* attribute;
  ParamKind kind;
  const char* values;  // parted by blanks
  const char* defaultValue;
};

constexpr Sample kSamples[] = {
    {"td", "bgcolor", ParamKind::Colour, "", ""},
    {"body", "vlink", ParamKind::Colour, "", ""},
    {"img", "alt", ParamKind::Text, "", ""},
    {"textarea", "cols", ParamKind::Text, "", "20"},
    {"area", "shape", ParamKind::List, "rect circle poly default", "rect"},
    {"bdo", "dir", ParamKind::List, "ltr rtl", "rtl"},
    {"th", "scope", ParamKind::List, "row col rowgroup colgroup", ""},
    {"form", "method", ParamKind::List, "get post dialog", ""},
    {"track", "kind", ParamKind::List, "subtitles captions descriptions chapters metadata", "subtitles"},
    {"table", "frame", ParamKind::List, "void above below hsides lhs rhs vsides box border", ""},
    {"embed", "hidden", ParamKind::List, "true false", ""},
    {"a", "href", ParamKind::ListFromFile, "", ""},
    {"form", "enctype", ParamKind::ListFromFile, "", ""},
    {"option", "selected", ParamKind::Switch, "", "FALSE"},
    {"p", "hidden", ParamKind::Switch, "", "FALSE"},
    {"form", "onsubmit", ParamKind::Event, "", ""},
    {"p", "class", ParamKind::Style, "", ""},
    {"p", "style", ParamKind::Style, "", ""},
    {"video", "poster", ParamKind::Dialog, "", ""},
};

TEST(ShippedSheets, AttributesHaveTheirKindsValuesAndDefaults) {
  for (const Sample& sample : kSamples) {
    const ParamRecord* param = ParamOf(sample.tag, sample.attribute);
    ASSERT_TRUE(param) << sample.tag << " " << sample.attribute;
    EXPECT_EQ(param->kind, sample.kind) << sample.tag << " " << sample.attribute;
    EXPECT_EQ(param->values, WordsOf(sample.values)) << sample.tag << " " << sample.attribute;
    EXPECT_EQ(param->defaultValue, sample.defaultValue) << sample.tag << " " << sample.attribute;
  }
}

TEST(ShippedSheets, WhatMattersMostComesFirst) {
  EXPECT_EQ(ParamsOf("a").at(0).name, "href");
  EXPECT_EQ(ParamsOf("img").at(0).name, "src");
  EXPECT_EQ(ParamsOf("table").at(0).name, "border");
  EXPECT_EQ(ParamsOf("p").at(0).name, "align");
}

TEST(ShippedSheets, TextsAreWindows1250) {
  const TagRecord* br = nullptr;
  for (const TagRecord& tag : Shipped().Tags())
    if (tag.name == "br") br = &tag;
  ASSERT_TRUE(br);
  EXPECT_EQ(br->info, "Złamanie linii"_pl);
}

// The list of tags to insert and the sheets know the same language.
TEST(ShippedSheets, EachTagOfTheInsertionListHasASheet) {
  std::istringstream list(BytesOf(MORLAN7_TREE "/Listy/Tags.lst"));
  for (std::string line; std::getline(list, line);) {
    const std::string name = line.substr(1, line.find_first_of(" >\r", 1) - 1);
    if (line.starts_with("<!")) continue;
    EXPECT_NE(Shipped().FindTag(name), 0u) << line;
  }
}

TEST(ShippedSheets, GoToTheirSourceAndBackByteForByte) {
  std::vector<PropertySourceText> source;
  for (const auto& entry : fs::directory_iterator(MORLAN7_SOURCE_DIR "/data/znaczniki"))
    source.push_back({entry.path().filename(), BytesOf(entry.path())});
  ASSERT_GT(source.size(), 1u);
  const CompiledProperties compiled = CompileProperties(source);
  ASSERT_TRUE(compiled.faults.empty()) << compiled.faults.front();
  EXPECT_TRUE(compiled.file.Bytes() == Shipped().Bytes());
  const auto flat = PropertySourceOf(compiled.file);
  ASSERT_TRUE(flat);
  EXPECT_TRUE(CompileProperties({{"flat", *flat}}).file.Bytes() == compiled.file.Bytes());
}

}  // namespace
}  // namespace morlan
