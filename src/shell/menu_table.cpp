#include "shell/menu_table.h"

#include <array>

namespace pixano {
namespace {

constexpr bool Off = true;

// clang-format off
constexpr auto Entries = std::to_array<MenuEntry>({
    {"File",       "&File",                  0},         //  1
    {"Apri",       "&Apri",                  1},         //  2
    {"Salva",      "&Salva File",            1},         //  3
    {"Meno",       "-",                      1},         //  4
    {"Inbot",      "Ingrandimento",          1},         //  5
    {"Top",        "Top",                    5},         //  6
    {"Bottom",     "Bottom",                 5},         //  7
    {"Sini",       "Sinistro",               5},         //  8
    {"Destro",     "Destro",                 5},         //  9
    {"Intop",      "Ingrandim. &Top",        1},         // 10
    {"Sintop",     "Sinistro",              10},         // 11
    {"Destop",     "Destro",                10},         // 12
    {"Ingrbot",    "Ingrandim. &Bottom",     1},         // 13
    {"Sinbot",     "Sinistro",              13},         // 14
    {"Desbot",     "Destro",                13},         // 15
    {"Incentro",   "Ingrand. &Centro",       1},         // 16
    {"Men",        "-",                      1},         // 17
    {"rifver",     "Riflesso &Verticale",    1},         // 18
    {"Sinvert",    "Sinistro",              18},         // 19
    {"Desvert",    "Destro",                18},         // 20
    {"Rifor",      "Riflesso & Orizzontale", 1},         // 21
    {"Super",      "Superiore",             21},         // 22
    {"Infer",      "Inferiore",             21},         // 23
    {"Dopfoto",    "&Doppia Foto",           1},         // 24
    {"Vertdop",    "Verticale",             24},         // 25
    {"Orizdop",    "Orizzontale",           24},         // 26
    {"Rotaz",      "&Rotazione 90° a...",    1},         // 27
    {"Sinrot",     "Sinistra",              27},         // 28
    {"Desrot",     "Destra",                27},         // 29
    {"Invers",     "I&nversione",            1},         // 30
    {"Specchio",   "Specchio",              30},         // 31
    {"Capov",      "Capovolgi",             30},         // 32
    {"Multifoto",  "&Multifoto",             1},         // 33
    {"Menon",      "-",                      1},         // 34
    {"Esci",       "&Esci...",               1},         // 35
    {"Effetti",    "&Effetti",               0},         // 36
    {"MiniRnd",    "&Mini Foto Rnd",        36},         // 37
    {"Mulstep",    "Multi &Step",           36},         // 38
    {"Vertstep",   "Verticale",             38},         // 39
    {"Orizstep",   "Orizzontale",           38},         // 40
    {"MulStepRnd", "Def&ormazione",         36},         // 41
    {"Distors",    "&Distorsione...",       36},         // 42
    {"DisUno",     "1",                     42},         // 43
    {"DisDue",     "2",                     42},         // 44
    {"Empir",      "&Empireo...",           36},         // 45
    {"EmpUno",     "1",                     45},         // 46
    {"EmpDue",     "2",                     45},         // 47
    {"Fantas",     "&Fantastic...",         36},         // 48
    {"FantUno",    "1",                     48},         // 49
    {"FantDue",    "2",                     48},         // 50
    {"Artistic",   "&Artistico...",         36},         // 51
    {"ArtUno",     "1",                     51},         // 52
    {"ArtDue",     "2",                     51},         // 53
    {"ArTre",      "3",                     51},         // 54
    {"ArtQuat",    "4",                     51},         // 55
    {"ArtCinq",    "5",                     51},         // 56
    {"ArtSei",     "6",                     51},         // 57
    {"Undo",       "&Annulla",               0, Off},    // 58
    {"Orig",       "&Originale",             0},         // 59
    {"Redo",       "&Ripristina",            0, Off},    // 60
    {"Inf",        "&Inf.",                  0},         // 61
    {"Inter",      "?",                      0},         // 62
});
// clang-format on

}  // namespace

std::span<const MenuEntry> MenuEntries()
{
    return Entries;
}

}  // namespace pixano
