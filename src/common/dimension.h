// A length given by script code as text ("2.5cm", "30%", "12"), parsed once
// and rendered in whichever unit the markup asks for.
#pragma once

#include <cstdint>

#include "common/strings.h"

namespace deckforge {

class Dimension {
public:
    enum Units : std::int32_t {
        Pixels = 0,
        Inches = 1,
        Millimeters = 2,
        Centimeters = 3,
        Points = 4,
        Picas = 5,
        Percent = 6,
        Proportional = 7,
        Twips = 8,
        Emus = 9,
        Unknown = 10
    };

    Dimension();
    explicit Dimension(u16string const& value);
    Dimension(Dimension const& other);
    Dimension& operator=(Dimension const& other);

    // The canonical word of a unit; empty for Unknown.
    static u16string const& dim2str(Units units);
    // The unit of a word, in any letter case; Unknown for anything else.
    static Units const& str2dim(u16string const& word);
    // Whether a text names a length with both a number and a known unit.
    // Stricter than parse for bare numbers, laxer for a lone sign.
    static bool isValid(u16string const& value);

    // Re-reads the stored text; rewrites it to its normalised form.
    void parse();

    // The normalised text, e.g. "2.5cm".
    operator u16string const&() const { return mText; }
    u16string const& getText() const { return mText; }
    double getNumber() const { return mNumber; }
    Units getUnits() const { return mUnits; }

    std::int32_t getEMUNumber() const;
    u16string getEMUValue() const;
    double getPointNumber() const;
    u16string getPointValue() const;
    double getDXANumber() const;
    u16string getDXAValue() const;
    u16string getHalfPointValue() const;
    u16string getEighthsPointValue() const;
    u16string getTwipsValue() const;
    u16string getPixelValue() const;
    u16string getPercentValue() const;
    u16string getProportionalValue() const;
    double getPCTNumber() const;
    u16string getPCTValue() const;

    // Same units compare their numbers; different units compare in points.
    bool operator==(Dimension const& other) const;
    bool operator!=(Dimension const& other) const;
    bool operator<(Dimension const& other) const;
    bool operator>(Dimension const& other) const;

private:
    static void split(u16string const& text, u16string& number, u16string& units);

    u16string mText;
    double mNumber = 0.0;
    Units mUnits = Pixels;
};

}  // namespace deckforge
