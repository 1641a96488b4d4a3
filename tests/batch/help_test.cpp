// The tool's help: whoever follows it gets what it says.
#include "batch/tool_run.h"

#include "effects/catalogue.h"

#include <map>
#include <sstream>

namespace pixano::batch::test {
namespace {

using testing::HasSubstr;

class Help : public Tool {
  protected:
    /// The help with each run of blanks and line ends as one blank.
    std::string Text() const
    {
        std::istringstream words(Run({"--aiuto"}).out);
        std::string text;
        for (std::string word; words >> word;)
            text += (text.empty() ? "" : " ") + word;
        return text;
    }
};

TEST_F(Help, SaysWhatEachOptionDoes)
{
    const std::string text = Text();
    for (const char* const said :
         {"Uso: pixano-batch [OPZIONI] -o USCITA INGRESSO pixano-batch [OPZIONI] -d CARTELLA "
          "INGRESSO... pixano-batch [OPZIONI] --tutti -d CARTELLA FOTO",
          "a una o più immagini (BMP, JPEG o GIF), senza finestre.",
          "-e, --effetto NOME[=FORZA] applica l'effetto; ripetibile, nell'ordine dato.",
          "senza, vale quella del file «valori.tip» accanto al programma",
          "-o, --uscita FILE scrive il risultato in FILE: PNG se finisce in .png, JPEG se finisce "
          "in .jpg o .jpeg, BMP se finisce in .bmp o non ha estensione",
          "-d, --cartella CARTELLA scrive il risultato di NOME.* in CARTELLA/NOME.bmp",
          "-j, --insieme N elabora N immagini alla volta (una per processore se manca)",
          "--entro N prima degli effetti riduce le immagini che hanno un lato più lungo di N",
          "--tutti prova tutti gli effetti su FOTO: in CARTELLA scrive una piccola immagine per "
          "ognuno e una pagina, index.html,",
          "--seme N fa partire i numeri casuali da N, per ogni immagine",
          "--qualita N qualità dei risultati JPEG, da 1 a 100 (95 se manca)",
          "--silenzioso scrive soltanto errori e avvisi",
          "--elenco elenca gli effetti: nome, famiglia, valori della forza",
          "--versione, --version scrive la versione",
          "-h, --aiuto, --help scrive questo testo -- quello che segue è il nome di un'immagine",
          "Un'opzione lunga si può abbreviare, finché non si confonde con un'altra.",
          "Al posto di INGRESSO o di FILE, «-» è lo standard input o lo standard output.",
          "e il titolo che l'immagine avrebbe nella sua finestra; con -o - la riga va sullo "
          "standard error.",
          "Il profilo ICC di un'immagine passa al suo risultato JPEG o PNG.",
          "Esce con 0 se tutto è riuscito, con 1 se qualcosa non è riuscito (di un'immagine non "
          "riuscita nessun file viene scritto o cambiato), con 2 se il comando è sbagliato."})
        EXPECT_THAT(text, HasSubstr(said));
}

TEST_F(Help, IsTheSameByEveryName)
{
    const std::string help = Run({"--aiuto"}).out;
    for (const char* const name : {"-h", "--help", "--ai"}) {
        const Ran ran = Run({name});
        EXPECT_EQ(ran.out, help) << name;
        EXPECT_EQ(ran.status, 0) << name;
        EXPECT_EQ(ran.err, "") << name;
    }
    // Whatever stands beside it.
    EXPECT_EQ(Run({"--tutti", "-d", "missing", "-h", "missing.bmp"}).out, help);
}

TEST_F(Help, ListsTheFamilyOfEveryEffect)
{
    const std::map<Family, std::string> names{{Family::Geometry, "Geometria"},
                                              {Family::ColourAndArt, "Colori"},
                                              {Family::Composite, "Composizione"}};
    std::string expected;
    for (const Effect& effect : Effects)
        expected += std::string(effect.name) + "\t" + names.at(effect.family) + "\t" +
                    (effect.selector != 0 ? "0-10000" : "") + "\n";
    EXPECT_EQ(Run({"--elenco"}).out, expected);
}

TEST_F(Help, IsPointedToAfterAWrongCommand)
{
    EXPECT_EQ(Run({"a.bmp"}).err,
              "pixano-batch: Manca -o (il file da scrivere) o -d (la cartella)\n"
              "Uso: pixano-batch [OPZIONI] -o USCITA INGRESSO (tutto il resto con --aiuto)\n");
}

}  // namespace
}  // namespace pixano::batch::test
