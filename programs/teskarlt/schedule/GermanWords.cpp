// GermanWords.cpp - the words of schedules in German.
#include "teskarlt/schedule/Language.h"

namespace teskarlt::schedule {

namespace {

constexpr std::pair<std::string_view, std::string_view> WORDS[] = {
    {"schedule", "Dachfensterliste"},
    {"comparison", "Änderungen der Dachfenster"},
    {"total", "Summe"},
    // columns
    {"mark", "Position"},
    {"quantity", "Stück"},
    {"maker", "Hersteller"},
    {"key", "Artikel"},
    {"text", "Beschreibung"},
    {"width", "Breite"},
    {"length", "Länge"},
    {"frameWidth", "Rahmenbreite"},
    {"frameDepth", "Rahmentiefe"},
    {"opening", "Öffnungsart"},
    {"pitch", "Dachneigung"},
    {"roof", "Dachfläche"},
    {"compass", "Himmelsrichtung"},
    {"sill", "Brüstungshöhe"},
    {"head", "Sturzhöhe"},
    {"glassArea", "Glasfläche"},
    {"frameArea", "Rahmenfläche"},
    {"toEaves", "Abstand zur Traufe"},
    {"toRidge", "Abstand zum First"},
    {"layer", "Layer"},
    {"number", "Nummer"},
    {"code", "Öffnungscode"},
    {"windowLayers", "Layer des Fensters"},
    {"notes", "Bemerkungen"},
    // how a sash opens
    {"opening.B", "Klappfenster, oben angeschlagen"},
    {"opening.C", "Kippfenster, unten angeschlagen"},
    {"opening.D", "Schwingfenster"},
    {"opening.E", "Drehfenster"},
    {"opening.fixed", "Festverglasung"},
    {"opening.inward", "nach innen öffnend"},
    {"opening.outward", "nach außen öffnend"},
    {"opening.left", "von innen gesehen links angeschlagen"},
    {"opening.right", "von innen gesehen rechts angeschlagen"},
    // points of the compass
    {"compass.N", "N"},
    {"compass.E", "O"},
    {"compass.S", "S"},
    {"compass.W", "W"},
    // what a comparison tells
    {"change", "Änderung"},
    {"value", "Angabe"},
    {"before", "Bisher"},
    {"after", "Jetzt"},
    {"came", "neu"},
    {"went", "entfallen"},
    {"changed", "geändert"},
};

}  // namespace

const Language GERMAN{"de", ',', WORDS};

}  // namespace teskarlt::schedule
