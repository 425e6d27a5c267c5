// CzechWords.cpp - the words of schedules in Czech.
#include "teskarlt/schedule/Language.h"

namespace teskarlt::schedule {

namespace {

constexpr std::pair<std::string_view, std::string_view> WORDS[] = {
    {"schedule", "Výkaz střešních oken"},
    {"comparison", "Změny střešních oken"},
    {"total", "Celkem"},
    // columns
    {"mark", "Označení"},
    {"quantity", "Počet kusů"},
    {"maker", "Výrobce"},
    {"key", "Katalogové označení"},
    {"text", "Popis"},
    {"width", "Šířka"},
    {"length", "Délka"},
    {"frameWidth", "Šířka rámu"},
    {"frameDepth", "Hloubka rámu"},
    {"opening", "Způsob otevírání"},
    {"pitch", "Sklon střechy"},
    {"roof", "Střecha"},
    {"compass", "Světová strana"},
    {"sill", "Výška parapetu"},
    {"head", "Výška nadpraží"},
    {"glassArea", "Plocha zasklení"},
    {"frameArea", "Plocha rámu"},
    {"toEaves", "Od okapu"},
    {"toRidge", "Od hřebene"},
    {"layer", "Hladina"},
    {"number", "Číslo"},
    {"code", "Kód otevírání"},
    {"windowLayers", "Hladiny okna"},
    {"notes", "Poznámky"},
    // how a sash opens
    {"opening.B", "výklopné se závěsy nahoře"},
    {"opening.C", "sklopné se závěsy dole"},
    {"opening.D", "kyvné"},
    {"opening.E", "otevíravé"},
    {"opening.fixed", "pevné zasklení"},
    {"opening.inward", "otevírá se dovnitř"},
    {"opening.outward", "otevírá se ven"},
    {"opening.left", "závěsy vlevo při pohledu zevnitř"},
    {"opening.right", "závěsy vpravo při pohledu zevnitř"},
    // points of the compass: sever, východ, jih, západ
    {"compass.N", "S"},
    {"compass.E", "V"},
    {"compass.S", "J"},
    {"compass.W", "Z"},
    // what a comparison tells
    {"change", "Změna"},
    {"value", "Údaj"},
    {"before", "Dříve"},
    {"after", "Nyní"},
    {"came", "přibylo"},
    {"went", "ubylo"},
    {"changed", "změněno"},
};

}  // namespace

const Language CZECH{"cs", ',', WORDS};

}  // namespace teskarlt::schedule
