#include "sketch/model/properties.h"

#include <cmath>
#include <numbers>

#include "sketch/model/box.h"
#include "sketch/model/picture.h"
#include "sketch/model/text.h"

namespace sketch {
namespace {

constexpr std::size_t lower_right = 2;

double DegreesOf(const Picture& picture) {
    return std::round(picture.Frame().angle * 180 / std::numbers::pi * 100) / 100;
}

bool ApplyToPicture(const Properties& properties, Picture& picture) {
    picture.Rename(properties.name);
    const double turn = properties.degrees - DegreesOf(picture);
    return turn == 0 || picture.Turn(turn * std::numbers::pi / 180);
}

void Resize(const owl::TSize& size, Box& box) {
    const owl::TPoint corner = box.Bounds().BottomRight();
    box.Pull(lower_right, corner, box.Bounds().TopLeft() + size);
}

}  // namespace

Properties PropertiesOf(const Figure& figure) {
    Properties properties;
    properties.hasPlace = true;
    properties.place = figure.Bounds();
    properties.canResize = dynamic_cast<const Box*>(&figure) != nullptr;
    if (const Look* const look = figure.LookOf()) {
        properties.hasLook = true;
        properties.look = *look;
    }
    if (const auto* const text = dynamic_cast<const Text*>(&figure)) {
        properties.hasFont = true;
        properties.font = text->Font();
    }
    if (const auto* const picture = dynamic_cast<const Picture*>(&figure)) {
        properties.isPicture = true;
        properties.name = picture->Name();
        properties.size = picture->Frame().size;
        properties.degrees = DegreesOf(*picture);
    }
    return properties;
}

bool Apply(const Properties& properties, Figure& figure) {
    const owl::TPoint before = figure.Bounds().TopLeft();
    bool isDone = true;
    if (Look* const look = figure.LookOf()) {
        *look = properties.look;
    }
    if (auto* const text = dynamic_cast<Text*>(&figure)) {
        text->Write(text->Words(), properties.font);
    } else if (auto* const picture = dynamic_cast<Picture*>(&figure)) {
        const owl::TSize asked = properties.place.TopLeft() - before;
        isDone = ApplyToPicture(properties, *picture);
        // Turning moves the corner; only what was asked for beyond that moves the picture.
        picture->MoveBy(asked);
        return isDone;
    } else if (auto* const box = dynamic_cast<Box*>(&figure)) {
        Resize(properties.place.Size(), *box);
        isDone = box->Bounds().Size() == properties.place.Size();
    }
    figure.MoveBy(properties.place.TopLeft() - before);
    return isDone && figure.Bounds().TopLeft() == properties.place.TopLeft();
}

}  // namespace sketch
