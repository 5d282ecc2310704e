// Text of the whole system is UTF-16 (std::u16string). These functions convert
// to and from the other kinds of text, print and read numbers, and make ids.
#pragma once

#include <string>

namespace deckforge {

using std::u16string;

u16string toString(std::string const& utf8);
u16string toString(std::wstring const& wide);
u16string toStringFromASCIIStringLiteral(char const* ascii);
// UTF-8 for the borders to the host, error texts and file names.
std::string toUtf8(u16string const& text);
std::wstring toWide(u16string const& text);

u16string toLowerString(u16string const& text);
u16string toUpperString(u16string const& text);

u16string const& bool2str(bool value);
void replaceAll(u16string& text, u16string const& from, u16string const& to);

u16string num2str(unsigned int value);
u16string num2str(int value);
u16string num2str(unsigned long value);
u16string num2str(double value);
// Integers as markup, part names and lengths that are read back need them:
// ASCII digits without grouping whatever the locale, as xsd:int is written.
u16string plainInteger(long long value);

long str2long(u16string const& text);
int str2int(u16string const& text);
unsigned int str2uint(u16string const& text);
double str2double(u16string const& text);

u16string uuid_gen();

}  // namespace deckforge
