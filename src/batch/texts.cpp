#include "batch/texts.h"

#include "effects/catalogue.h"
#include "files/system_reason.h"

namespace pixano::batch {
std::string_view FamilyName(Family family)
{
    switch (family) {
    case Family::Geometry:
        return "Geometria";
    case Family::ColourAndArt:
        return "Colori";
    case Family::Composite:
        return "Composizione";
    }
    return "";
}

std::string HelpText()
{
    return R"(Uso: pixano-batch [OPZIONI] -o USCITA INGRESSO
     pixano-batch [OPZIONI] -d CARTELLA INGRESSO...
     pixano-batch [OPZIONI] --tutti -d CARTELLA FOTO

Applica gli effetti di Pixano a una o più immagini (BMP, JPEG o GIF), senza finestre.

  -e, --effetto NOME[=FORZA]  applica l'effetto; ripetibile, nell'ordine dato.
                              FORZA è un numero, per gli effetti che ne hanno una;
                              senza, vale quella del file «valori.tip» accanto
                              al programma
  -o, --uscita FILE           scrive il risultato in FILE: PNG se finisce in .png,
                              JPEG se finisce in .jpg o .jpeg, BMP se finisce
                              in .bmp o non ha estensione
  -d, --cartella CARTELLA     scrive il risultato di NOME.* in CARTELLA/NOME.bmp
  -j, --insieme N             elabora N immagini alla volta (una per processore se manca)
      --entro N               prima degli effetti riduce le immagini che hanno un
                              lato più lungo di N pixel, facendo la media dell'area
      --tutti                 prova tutti gli effetti su FOTO: in CARTELLA scrive una
                              piccola immagine per ognuno e una pagina, index.html,
                              con i nomi, le forze e i comandi che li ripetono
      --seme N                fa partire i numeri casuali da N, per ogni immagine
      --qualita N             qualità dei risultati JPEG, da 1 a 100 (95 se manca)
      --silenzioso            scrive soltanto errori e avvisi
      --elenco                elenca gli effetti: nome, famiglia, valori della forza
      --versione, --version   scrive la versione
  -h, --aiuto, --help         scrive questo testo
      --                      quello che segue è il nome di un'immagine

Un'opzione lunga si può abbreviare, finché non si confonde con un'altra.
Al posto di INGRESSO o di FILE, «-» è lo standard input o lo standard output.
Per ogni immagine scrive una riga con il nome del risultato e il titolo che
l'immagine avrebbe nella sua finestra; con -o - la riga va sullo standard error.
Il profilo ICC di un'immagine passa al suo risultato JPEG o PNG.

Esce con 0 se tutto è riuscito, con 1 se qualcosa non è riuscito (di un'immagine
non riuscita nessun file viene scritto o cambiato), con 2 se il comando
è sbagliato.
)";
}

std::string UnprintedText(int error)
{
    return "Impossibile scrivere sullo standard output: " + SystemReason(error);
}

std::string EffectList()
{
    std::string text;
    for (const Effect& effect : Effects) {
        text.append(effect.name).append("\t").append(FamilyName(effect.family)).append("\t");
        text.append(effect.selector != 0 ? "0-10000" : "").append("\n");
    }
    return text;
}

}  // namespace pixano::batch
