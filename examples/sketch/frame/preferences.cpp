#include "sketch/frame/preferences.h"

#include <cmath>

#include "lvx/files/settings.h"
#include "sketch/model/colour_text.h"
#include "sketch/model/text.h"

namespace sketch {
namespace {

using LVXUtilities::Settings;

constexpr const char* shapes = "Shapes";
constexpr const char* texts = "Texts";
constexpr const char* keys = "Keys";
constexpr double tenths = 10;

// The file may have been written by hand.
int ReadWithin(const Settings& settings, const char* section, const char* key, int least, int most,
               int otherwise) {
    const int number = settings.GetInt(section, key, otherwise);
    return number >= least && number <= most ? number : otherwise;
}

bool ReadFlag(const Settings& settings, const char* section, const char* key, bool otherwise) {
    return ReadWithin(settings, section, key, 0, 1, otherwise ? 1 : 0) == 1;
}

owl::TColor ReadColour(Settings& settings, const char* key, const owl::TColor& otherwise) {
    return ParseColour(settings.GetStr(shapes, key, "")).value_or(otherwise);
}

Look LoadLook(Settings& settings) {
    Look look;
    look.lineWidth = ReadWithin(settings, shapes, "LineWidth", 0, Look::widest, look.lineWidth);
    look.line =
        static_cast<LineType>(ReadWithin(settings, shapes, "Line", LineSolid, LineInsideFrame, look.line));
    look.lineColour = ReadColour(settings, "LineColour", look.lineColour);
    look.filled = ReadFlag(settings, shapes, "Filled", look.filled);
    look.fill = static_cast<FillPattern>(
        ReadWithin(settings, shapes, "Fill", FillBackground, FillDiagonalCross, look.fill));
    look.fillColour = ReadColour(settings, "FillColour", look.fillColour);
    return look;
}

void SaveLook(Settings& settings, const Look& look) {
    settings.WriteInt(shapes, "LineWidth", look.lineWidth);
    settings.WriteInt(shapes, "Line", look.line);
    settings.WriteStr(shapes, "LineColour", ColourText(look.lineColour));
    settings.WriteInt(shapes, "Filled", look.filled ? 1 : 0);
    settings.WriteInt(shapes, "Fill", look.fill);
    settings.WriteStr(shapes, "FillColour", ColourText(look.fillColour));
}

// Sizes in tenths of a point, which are whole numbers.
myFont LoadFont(Settings& settings, const myFont& otherwise) {
    myFont font = otherwise;
    font.Face(settings.GetStr(texts, "Face", otherwise.Face()));
    const auto least = static_cast<int>(Text::smallest * tenths);
    const auto most = static_cast<int>(Text::largest * tenths);
    const auto size = static_cast<int>(std::lround(otherwise.Size() * tenths));
    font.Size(ReadWithin(settings, texts, "TenthsOfPoints", least, most, size) / tenths);
    font.Bold(ReadFlag(settings, texts, "Bold", otherwise.Bold()));
    font.Italic(ReadFlag(settings, texts, "Italic", otherwise.Italic()));
    font.Underline(ReadFlag(settings, texts, "Underline", otherwise.Underline()));
    font.Strikeout(ReadFlag(settings, texts, "Strikeout", otherwise.Strikeout()));
    return font;
}

void SaveFont(Settings& settings, const myFont& font) {
    settings.WriteStr(texts, "Face", font.Face());
    settings.WriteInt(texts, "TenthsOfPoints", static_cast<int>(std::lround(font.Size() * tenths)));
    settings.WriteInt(texts, "Bold", font.Bold() ? 1 : 0);
    settings.WriteInt(texts, "Italic", font.Italic() ? 1 : 0);
    settings.WriteInt(texts, "Underline", font.Underline() ? 1 : 0);
    settings.WriteInt(texts, "Strikeout", font.Strikeout() ? 1 : 0);
}

}  // namespace

Preferences LoadPreferences(Settings& settings) {
    Preferences preferences;
    preferences.look = LoadLook(settings);
    preferences.font = LoadFont(settings, preferences.font);
    preferences.step = ReadWithin(settings, keys, "Step", 1, Preferences::widest_step, preferences.step);
    return preferences;
}

void SavePreferences(Settings& settings, const Preferences& preferences) {
    SaveLook(settings, preferences.look);
    SaveFont(settings, preferences.font);
    settings.WriteInt(keys, "Step", preferences.step);
}

}  // namespace sketch
