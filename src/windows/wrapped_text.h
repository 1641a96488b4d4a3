// Text in lines of a stated width. A word that is longer than a line, as names of files may be,
// goes on in the next one; nothing is put into it for that.
#pragma once

#include <QTextDocument>
#include <QWidget>

namespace pixano {

class WrappedText : public QWidget {
    Q_OBJECT

  public:
    WrappedText(const QString& text, int width);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QTextDocument lines_;
};

}  // namespace pixano
