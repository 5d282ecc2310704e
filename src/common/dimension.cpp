#include "common/dimension.h"

#include <cmath>
#include <map>
#include <string>

#include <boost/regex.hpp>

#include "platform/msg_ids.h"

namespace deckforge {

namespace {

using UnitFactors = std::map<Dimension::Units, double>;

// The factors are coarse on purpose (a cm is 0.3937 in, a pixel is 1/150 in
// here but 9525 EMU there): existing decks were sized with them.
constexpr double kPixelsPerInch = 150.0;
constexpr double kEmusPerInch = 914400.0;
constexpr double kTwipsPerInch = 1440.0;
constexpr double kInchesPerCm = 0.3937;
constexpr double kInchesPerMm = 0.03937;
constexpr double kInchesPerPoint = 0.0139;
constexpr double kInchesPerPica = 0.0833;
constexpr double kInchesPerTwip = 0.0006944444444444445;
constexpr double kInchesPerEmu = 1.0936132983377078e-06;
constexpr double kInchesPerPixel = 0.006666666666666667;

// Output constants, stored rather than computed so that the last digit of
// every rendered value stays put.
constexpr double kPointsPerEmu = 7.874015748031496e-05;        // 1/12700
constexpr double kDxaPerEmu = 0.0015748031496062992;           // 1/635
constexpr double kHalfPointsPerEmu = 0.00015748031496062991;   // 1/6350
constexpr double kEighthPointsPerEmu = 0.0006299212598425197;  // 8/12700
constexpr double kPctPerPercent = 50.0;

UnitFactors const kPixelFactors = {
    {Dimension::Pixels, 1.0},
    {Dimension::Inches, kPixelsPerInch},
    {Dimension::Millimeters, kPixelsPerInch* kInchesPerMm},
    {Dimension::Centimeters, kPixelsPerInch* kInchesPerCm},
    {Dimension::Points, kPixelsPerInch* kInchesPerPoint},
    {Dimension::Picas, kPixelsPerInch* kInchesPerPica},
    {Dimension::Percent, 1.0},
    {Dimension::Proportional, 1.0},
    {Dimension::Twips, kPixelsPerInch* kInchesPerTwip},
    {Dimension::Emus, kPixelsPerInch* kInchesPerEmu},
};

UnitFactors const kEmuFactors = {
    {Dimension::Pixels, 9525.0},
    {Dimension::Inches, kEmusPerInch},
    {Dimension::Millimeters, kEmusPerInch* kInchesPerMm},
    {Dimension::Centimeters, kEmusPerInch* kInchesPerCm},
    {Dimension::Points, kEmusPerInch* kInchesPerPoint},
    {Dimension::Picas, kEmusPerInch* kInchesPerPica},
    {Dimension::Percent, 1.0},
    {Dimension::Proportional, 1.0},
    {Dimension::Twips, kEmusPerInch* kInchesPerTwip},
    {Dimension::Emus, 1.0},
};

// No entry for emus: a lookup miss gives 1.0, so emus pass through as twips.
UnitFactors const kTwipsFactors = {
    {Dimension::Pixels, kTwipsPerInch* kInchesPerPixel},
    {Dimension::Inches, kTwipsPerInch},
    {Dimension::Millimeters, kTwipsPerInch* kInchesPerMm},
    {Dimension::Centimeters, kTwipsPerInch* kInchesPerCm},
    {Dimension::Points, 20.0},
    {Dimension::Picas, kTwipsPerInch* kInchesPerPica},
    {Dimension::Percent, 1.0},
    {Dimension::Proportional, 1.0},
    {Dimension::Twips, 1.0},
};

double factor(UnitFactors const& table, Dimension::Units units) {
    auto it = table.find(units);
    return it == table.end() ? 1.0 : it->second;
}

// Truncation toward zero into 32 bits. Values out of range (and NaN) give
// INT32_MIN, as the hardware conversion would, but without undefined behaviour.
std::int32_t truncateToInt32(double value) {
    if (std::isnan(value) || value >= 2147483648.0 || value <= -2147483649.0) {
        return INT32_MIN;
    }
    return static_cast<std::int32_t>(value);
}

std::map<Dimension::Units, u16string> const& unitWords() {
    static std::map<Dimension::Units, u16string> const words = {
        {Dimension::Pixels, u"px"},      {Dimension::Inches, u"in"},      {Dimension::Millimeters, u"mm"},
        {Dimension::Centimeters, u"cm"}, {Dimension::Points, u"pt"},      {Dimension::Picas, u"pi"},
        {Dimension::Percent, u"%"},      {Dimension::Proportional, u"*"}, {Dimension::Twips, u"twips"},
        {Dimension::Emus, u"emus"},
    };
    return words;
}

std::map<u16string, Dimension::Units> const& wordUnits() {
    static std::map<u16string, Dimension::Units> const units = [] {
        std::map<u16string, Dimension::Units> m;
        for (auto const& entry : unitWords()) m.emplace(entry.second, entry.first);
        return m;
    }();
    return units;
}

boost::wregex const& dimensionExpression() {
    // Every piece may match nothing, so a search always succeeds at the
    // first position and whatever follows the first match is ignored.
    static boost::wregex const expression(
        std::wstring(L"\\s*") + L"(?<number>-?[0-9.]*)" + L"\\s*" + L"(?<units>[a-zA-Z%*]*)" + L"\\s*",
        boost::regex::perl);
    return expression;
}

}  // namespace

Dimension::Dimension() : mText(u"1in") {
    parse();
}

Dimension::Dimension(u16string const& value) : mText(value) {
    parse();
}

Dimension::Dimension(Dimension const& other)
    : mText(other.mText), mNumber(other.mNumber), mUnits(other.mUnits) {}

Dimension& Dimension::operator=(Dimension const& other) {
    if (this == &other) return *this;
    mText = other.mText;
    parse();
    return *this;
}

u16string const& Dimension::dim2str(Units units) {
    static u16string const empty;
    auto const& words = unitWords();
    auto it = words.find(units);
    return it == words.end() ? empty : it->second;
}

Dimension::Units const& Dimension::str2dim(u16string const& word) {
    static Units const unknown = Unknown;
    auto const& units = wordUnits();
    auto it = units.find(toLowerString(word));
    return it == units.end() ? unknown : it->second;
}

void Dimension::split(u16string const& text, u16string& number, u16string& units) {
    std::wstring const wide = toWide(text);
    boost::wsmatch match;
    if (!boost::regex_search(wide, match, dimensionExpression())) return;
    number = toLowerString(toString(std::wstring(match[L"number"].str())));
    units = toString(std::wstring(match[L"units"].str()));
}

bool Dimension::isValid(u16string const& value) {
    u16string number;
    u16string units;
    split(value, number, units);
    return !number.empty() && !units.empty() && str2dim(units) != Unknown;
}

void Dimension::parse() {
    u16string numberText;
    u16string unitsText;
    split(mText, numberText, unitsText);
    if (numberText.empty()) {
        numberText = u"0";
    } else if (numberText == u"-") {
        raise<dom_error::invalidDimensionSign>();
    }
    Units units = str2dim(unitsText);
    if (units == Unknown) {
        if (!unitsText.empty()) raise<dom_error::invalidDimensionUnits>(unitsText);
        // A bare number is a pixel length.
        units = Pixels;
    }
    mUnits = units;
    mText = numberText + dim2str(units);
    mNumber = str2double(numberText);
}

std::int32_t Dimension::getEMUNumber() const {
    return truncateToInt32(factor(kEmuFactors, mUnits) * mNumber);
}

u16string Dimension::getEMUValue() const {
    return plainInteger(static_cast<int>(getEMUNumber()));
}

double Dimension::getPointNumber() const {
    // Points are kept as typed: going through the EMU table would turn 1pt
    // into 1.0008pt.
    if (mUnits == Points) return mNumber;
    return (factor(kEmuFactors, mUnits) * mNumber) * kPointsPerEmu;
}

u16string Dimension::getPointValue() const {
    return num2str(getPointNumber());
}

double Dimension::getDXANumber() const {
    return (factor(kEmuFactors, mUnits) * mNumber) * kDxaPerEmu;
}

u16string Dimension::getDXAValue() const {
    return num2str(getDXANumber());
}

u16string Dimension::getHalfPointValue() const {
    return plainInteger(
        static_cast<int>(truncateToInt32((factor(kEmuFactors, mUnits) * mNumber) * kHalfPointsPerEmu)));
}

u16string Dimension::getEighthsPointValue() const {
    return plainInteger(
        static_cast<int>(truncateToInt32((factor(kEmuFactors, mUnits) * mNumber) * kEighthPointsPerEmu)));
}

u16string Dimension::getTwipsValue() const {
    return plainInteger(static_cast<int>(truncateToInt32(factor(kTwipsFactors, mUnits) * mNumber)));
}

u16string Dimension::getPixelValue() const {
    return num2str(factor(kPixelFactors, mUnits) * mNumber);
}

u16string Dimension::getPercentValue() const {
    return num2str(mNumber);
}

u16string Dimension::getProportionalValue() const {
    return num2str(mNumber);
}

double Dimension::getPCTNumber() const {
    return kPctPerPercent * mNumber;
}

u16string Dimension::getPCTValue() const {
    return num2str(getPCTNumber());
}

bool Dimension::operator==(Dimension const& other) const {
    if (mUnits == other.mUnits) return mNumber == other.mNumber;
    return getPointNumber() == other.getPointNumber();
}

bool Dimension::operator!=(Dimension const& other) const {
    return !(*this == other);
}

bool Dimension::operator<(Dimension const& other) const {
    if (mUnits == other.mUnits) return mNumber < other.mNumber;
    return getPointNumber() < other.getPointNumber();
}

bool Dimension::operator>(Dimension const& other) const {
    if (mUnits == other.mUnits) return mNumber > other.mNumber;
    return getPointNumber() > other.getPointNumber();
}

}  // namespace deckforge
