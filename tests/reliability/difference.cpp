#include "reliability/difference.h"

#include "support/entries.h"

#include <QPushButton>
#include <QStringList>

namespace pixano::test {

std::string Difference(Session& session, const Model& model)
{
    QStringList found;
    const auto compare = [&found](const QString& what, const auto& is, const auto& should) {
        if (is == should) return;
        QString text = what;
        if constexpr (requires { QString::number(static_cast<double>(is)); })
            text += QString(": %1, not %2").arg(is).arg(should);
        if constexpr (requires { is.startsWith(QString()); })
            text += ": \"" + is + "\", not \"" + should + '"';
        found += text;
    };
    const Document& d = session.doc;
    compare("canvas", session.work.Picture1, model.Canvas());
    compare("preview", session.form9.Image1().Picture(), model.preview);
    compare("Modificato", d.Modificato, model.modified ? 1 : 0);
    compare("open", d.open, model.isOpen);
    compare("canvas caption", session.form2.windowTitle(),
            QString::fromStdString(model.canvasCaption));
    compare("preview caption", session.form9.windowTitle(),
            QString::fromStdString(model.previewCaption));
    compare("NomeSalvato", d.NomeSalvato, QString::fromStdString(model.saved));
    for (int index = 1; index <= EntryCount(); ++index) {
        const QAction& action = session.form1.Control(index - 1);
        compare("enabled " + action.objectName(), action.isEnabled(), model.Enabled(index));
        compare("checked " + action.objectName(), action.isChecked(), model.checked == index);
    }
    compare("palette undo", session.form10.findChild<QPushButton*>("SSCommand15")->isEnabled(),
            model.paletteUndo);
    compare("palette original", session.form10.findChild<QPushButton*>("SSCommand16")->isEnabled(),
            model.paletteOriginal);
    compare("palette redo", session.form10.findChild<QPushButton*>("SSCommand17")->isEnabled(),
            model.paletteRedo);
    compare("canvas shown", session.form2.isVisible(), model.canvasShown);
    compare("preview shown", session.form9.isVisible(), model.previewShown);
    compare("palette shown", session.form10.isVisible(), model.paletteShown);
    compare("progress window shown", session.form4.isVisible(), model.progressShown);
    return found.join("; ").toStdString();
}

}  // namespace pixano::test
