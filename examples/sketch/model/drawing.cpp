#include "sketch/model/drawing.h"

#include <algorithm>

#include "lvx/store/object_factory.h"
#include "sketch/model/box.h"
#include "sketch/model/coordinates.h"
#include "sketch/model/picture.h"
#include "sketch/model/polygon.h"
#include "sketch/model/reading.h"
#include "sketch/model/text.h"

namespace sketch {
namespace {

constexpr int most_figures = 1000000;

// Under the names that stand in documents: they stay, whatever becomes of the classes.
const ObjectFactoryInit factory;
const bool registered = (ObjectFactory::Register("sketch::Drawing", Reading::Create<Drawing>),
                         ObjectFactory::Register("sketch::Rectangle", Reading::Create<Rectangle>),
                         ObjectFactory::Register("sketch::Ellipse", Reading::Create<Ellipse>),
                         ObjectFactory::Register("sketch::Polygon", Reading::Create<Polygon>),
                         ObjectFactory::Register("sketch::Picture", Reading::Create<Picture>),
                         ObjectFactory::Register("sketch::Text", Reading::Create<Text>), true);

}  // namespace

void Drawing::PutTo(ObjectStore& store) const {
    store << static_cast<int>(m_figures.size());
    for (const FigurePointer& figure : m_figures) {
        store << *figure;
    }
}

void Drawing::GetFrom(ObjectStore& store) {
    m_figures.clear();
    for (int left = ReadNumber(store, 0, most_figures, "number of figures"); left > 0; --left) {
        m_figures.push_back(Reading::Read<Figure>(store));
    }
    Figures sorted = m_figures;
    std::sort(sorted.begin(), sorted.end());
    if (std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end()) {
        throw DocumentError("A figure is there twice.");
    }
}

}  // namespace sketch
