// Everything of the program that a command which comes to nothing must leave as it was.
#pragma once

#include "document/session.h"
#include "support/entries.h"

#include <QPushButton>

#include <vector>

namespace pixano::test {

struct Seen {
    explicit Seen(Session& s)
        : canvas(s.work.Picture1),
          larg(s.work.Larg),
          alt(s.work.Alt),
          nomeFile(s.doc.NomeFile),
          fileAperto(s.doc.FileAperto),
          nomeCorto(s.doc.NomeCorto),
          cartella(s.doc.Cartella),
          nomeSalvato(s.doc.NomeSalvato),
          effetto(s.doc.Effetto),
          modificato(s.doc.Modificato),
          numEffetti(s.doc.NumEffetti),
          zoom(s.doc.Zoom),
          canvasCaption(s.form2.windowTitle()),
          previewCaption(s.form9.windowTitle()),
          canvasSize(s.form2.size()),
          previewSize(s.form9.size()),
          preview(s.form9.Image1().Picture())
    {
        for (int position = 0; position < EntryCount(); ++position)
            enabled.push_back(s.form1.Control(position).isEnabled());
        for (const auto* button : s.form10.findChildren<QPushButton*>())
            enabled.push_back(button->isEnabled());
    }

    friend bool operator==(const Seen&, const Seen&) = default;

    Surface canvas;
    int larg;
    int alt;
    QString nomeFile;
    QString fileAperto;
    QString nomeCorto;
    QString cartella;
    QString nomeSalvato;
    QString effetto;
    int modificato;
    int numEffetti;
    double zoom;
    QString canvasCaption;
    QString previewCaption;
    QSize canvasSize;
    QSize previewSize;
    Surface preview;
    std::vector<bool> enabled;
};

}  // namespace pixano::test
