// Texts on their way to Motif, and the Motif calls that take `char*` for texts they only read.
#pragma once

#include <Xm/Xm.h>

#include <string>
#include <string_view>

// `text` with every byte that a widget can't show replaced: a tab by a blank, anything outside
// printable ASCII by '?'; line feeds stay. Widgets are given nothing else, since Motif cuts a text
// short at bytes that are not valid in the locale.
std::string ziSafeText(std::string_view text);

// The same for a place of one line: a line feed at the end is dropped, any other is a blank.
std::string ziSafeLine(std::string_view text);

// An owned XmString of a sanitised text.
class ziXmString {
 public:
  explicit ziXmString(std::string_view text);
  ~ziXmString() { XmStringFree(string_); }
  ziXmString(const ziXmString&) = delete;
  ziXmString& operator=(const ziXmString&) = delete;
  XmString get() const { return string_; }

 private:
  XmString string_;
};

// Sets the font of a widget that shows text.
void ziSetFontList(Widget widget, XmFontList fonts);

// Title conventions of the templates. parseTitle drops each '&' that has a follower ("&&" yields
// one); parseForMnemonic gives the last character behind a single '&', or 0.
std::string ziParseTitle(std::string_view title);
char ziParseForMnemonic(std::string_view title);

// Gives a widget of the label family the text and the mnemonic of a title. What it shows already is
// not drawn again.
void ziSetLabel(Widget label, std::string_view title);

// XmText's texts as owned strings, and its setter, which leaves nothing selected. It doesn't draw
// again what is shown already, and the caret may be anywhere behind it.
std::string ziTextOf(Widget text);
std::string ziSelectedText(Widget text);
void ziSetText(Widget text, std::string_view value);

// What a change that XmText reports would insert; empty for a deletion.
std::string ziInsertedText(const XmTextVerifyCallbackStruct& change);
