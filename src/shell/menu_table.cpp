// The menu tree.
#include "document/opening.h"
#include "document/saving.h"
#include "effects/catalogue.h"
#include "panels/form5.h"
#include "panels/form7.h"
#include "shell/click_handlers.h"
#include "shell/controls.h"
#include "shell/shut_down.h"
#include "windows/centred.h"
#include "windows/window_operation.h"

#include <array>

namespace pixano {
namespace {

using enum Needs;

constexpr bool Off = true;

void Salva_Click(Session& s)
{
    SalvaFile(s);
}

void Esci_Click(Session& s)
{
    Form_Unload(s);
}

/// On the screen that holds the main window.
void ShowInTheMiddle(const Session& s, QDialog&& window)
{
    OpenOnScreenOf(s.form1, window);
    Centre(window);
    window.exec();
}

// cppcheck-suppress [constParameter, constParameterReference] ; every command takes the session
// alike
void Inf_Click(Session& s)
{
    ShowInTheMiddle(s, Form5());
}

// cppcheck-suppress [constParameter, constParameterReference] ; every command takes the session
// alike
void Inter_Click(Session& s)
{
    ShowInTheMiddle(s, Form7());
}

// clang-format off
constexpr auto Entries = std::to_array<MenuEntry>({
    {"File",       "&File",                   ""},
    {"Apri",       "&Apri",                   "File",     Nothing,            Command{"Apri", Apri_Click}, "Ctrl+O"},
    {"Salva",      "&Salva File",             "File",     Picture,            Command{"Salva File", Salva_Click}, "Ctrl+S"},
    {"Meno",       "-",                       "File"},
    {"Inbot",      "Ingrandimento",           "File",     Picture},
    {"Top",        "Top",                     "Inbot",    Picture,            EffectOf(Top)},
    {"Bottom",     "Bottom",                  "Inbot",    Picture,            EffectOf(Bottom)},
    {"Sini",       "Sinistro",                "Inbot",    Picture,            EffectOf(Sini)},
    {"Destro",     "Destro",                  "Inbot",    Picture,            EffectOf(Destro)},
    {"Intop",      "Ingrandim. &Top",         "File",     Picture},
    {"Sintop",     "Sinistro",                "Intop",    Picture,            EffectOf(Sintop)},
    {"Destop",     "Destro",                  "Intop",    Picture,            EffectOf(Destop)},
    {"Ingrbot",    "Ingrandim. &Bottom",      "File",     Picture},
    {"Sinbot",     "Sinistro",                "Ingrbot",  PictureButStaysOn,  EffectOf(Sinbot)},
    {"Desbot",     "Destro",                  "Ingrbot",  Picture,            EffectOf(Desbot)},
    {"Incentro",   "Ingrand. &Centro",        "File",     Picture,            EffectOf(Incentro)},
    {"Men",        "-",                       "File"},
    {"rifver",     "Riflesso &Verticale",     "File",     Picture},
    {"Sinvert",    "Sinistro",                "rifver",   Picture,            EffectOf(Sinvert)},
    {"Desvert",    "Destro",                  "rifver",   Picture,            EffectOf(Desvert)},
    {"Rifor",      "Riflesso & Orizzontale",  "File",     Picture},
    {"Super",      "Superiore",               "Rifor",    PictureButStaysOn,  EffectOf(Super)},
    {"Infer",      "Inferiore",               "Rifor",    PictureButStaysOn,  EffectOf(Infer)},
    {"Dopfoto",    "&Doppia Foto",            "File",     Picture},
    {"Vertdop",    "Verticale",               "Dopfoto",  Picture,            EffectOf(Vertdop)},
    {"Orizdop",    "Orizzontale",             "Dopfoto",  Picture,            EffectOf(Orizdop)},
    {"Rotaz",      "&Rotazione 90° a...",     "File",     Picture},
    {"Sinrot",     "Sinistra",                "Rotaz",    Picture},
    {"Desrot",     "Destra",                  "Rotaz",    Picture},
    {"Invers",     "I&nversione",             "File",     Picture},
    {"Specchio",   "Specchio",                "Invers",   Picture,            EffectOf(Specchio)},
    {"Capov",      "Capovolgi",               "Invers",   Picture,            EffectOf(Capov)},
    {"Multifoto",  "&Multifoto",              "File",     Picture,            EffectOf(Multifoto)},
    {"Menon",      "-",                       "File"},
    {"Esci",       "&Esci...",                "File",     Nothing,            Command{"Esci", Esci_Click, Fatal::All}},
    {"Effetti",    "&Effetti",                ""},
    {"MiniRnd",    "&Mini Foto Rnd",          "Effetti",  Picture,            EffectOf(MiniRnd)},
    {"Mulstep",    "Multi &Step",             "Effetti",  Picture},
    {"Vertstep",   "Verticale",               "Mulstep",  Picture,            EffectOf(Vertstep)},
    {"Orizstep",   "Orizzontale",             "Mulstep",  Picture,            EffectOf(Orizstep)},
    {"MulStepRnd", "Def&ormazione",           "Effetti",  Picture,            EffectOf(MulStepRnd)},
    {"Distors",    "&Distorsione...",         "Effetti",  Picture},
    {"DisUno",     "1",                       "Distors",  Picture,            EffectOf(DisUno)},
    {"DisDue",     "2",                       "Distors",  Picture,            EffectOf(DisDue)},
    {"Empir",      "&Empireo...",             "Effetti",  Picture},
    {"EmpUno",     "1",                       "Empir",    Picture,            EffectOf(EmpUno)},
    {"EmpDue",     "2",                       "Empir",    Picture,            EffectOf(EmpDue)},
    {"Fantas",     "&Fantastic...",           "Effetti",  Picture},
    {"FantUno",    "1",                       "Fantas",   Picture,            EffectOf(FantUno)},
    {"FantDue",    "2",                       "Fantas",   Picture,            EffectOf(FantDue)},
    {"Artistic",   "&Artistico...",           "Effetti",  Picture},
    {"ArtUno",     "1",                       "Artistic", Picture,            EffectOf(ArtUno)},
    {"ArtDue",     "2",                       "Artistic", Picture,            EffectOf(ArtDue)},
    {"ArTre",      "3",                       "Artistic", Picture,            EffectOf(ArTre)},
    {"ArtQuat",    "4",                       "Artistic", Picture,            EffectOf(ArtQuat)},
    {"ArtCinq",    "5",                       "Artistic", Picture,            EffectOf(ArtCinq)},
    {"ArtSei",     "6",                       "Artistic", Picture,            EffectOf(ArtSei)},
    {"Undo",       "&Annulla",                "",         History,            click::Annulla, "Ctrl+Z", Off},
    {"Orig",       "&Originale",              "",         History,            click::Originale, "Ctrl+0"},
    {"Redo",       "&Ripristina",             "",         History,            click::Ripristina, "Ctrl+Y", Off},
    {"Inf",        "&Inf.",                   "",         Nothing,            Command{"Inf.", Inf_Click}},
    {"Inter",      "?",                       "",         Nothing,            Command{"?", Inter_Click}},
});
// clang-format on

}  // namespace

MenuTable MenuEntries()
{
    return Entries;
}

}  // namespace pixano
