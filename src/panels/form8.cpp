#include "panels/form8.h"

#include "windows/centred.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

namespace pixano {
namespace {

/// The number that the text begins with; 0 when it begins with none.
double Val(const QString& text)
{
    static const QRegularExpression number(R"(^\s*[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?)");
    return number.match(text).captured().trimmed().toDouble();
}

}  // namespace

Form8::Form8(Subtraction& result) : result_(result), combo1_(new QComboBox)
{
    setObjectName("Form8");
    setWindowTitle("Parametri");
    setAccessibleName("Parametri");
    auto* const label = new QLabel("Sottrazione Colore");
    label->setObjectName("Label1");
    label->setBuddy(combo1_);
    BuildCombo();
    auto* const ok = new QPushButton("OK");
    ok->setObjectName("Command1");
    ok->setDefault(true);
    auto* const cancel = new QPushButton("Annulla");
    cancel->setObjectName("Command2");
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(ok, 1);
    buttons->addWidget(cancel, 1);
    auto* const grid = new QGridLayout(this);
    grid->addWidget(label, 0, 0);
    grid->addWidget(combo1_, 0, 1);
    grid->addLayout(buttons, 1, 0, 1, 2);
    const auto takeText = [this] { result_.TestoSottrazione = combo1_->currentText(); };
    connect(combo1_, &QComboBox::editTextChanged, this, takeText);
    // Told too when an entry is chosen that is shown already.
    connect(combo1_, &QComboBox::activated, this, takeText);
    connect(ok, &QPushButton::clicked, this, [this, takeText] {
        takeText();
        result_.ValoreSottrazione = result_.TestoSottrazione;
        accept();
    });
    connect(this, &QDialog::rejected, this, [this] { result_.ParametriAnnullati = 1; });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    Centre(*this);
}

void Form8::BuildCombo()
{
    combo1_->setObjectName("Combo1");
    combo1_->setAccessibleName("Sottrazione Colore");
    combo1_->setEditable(true);
    combo1_->setInsertPolicy(QComboBox::NoInsert);
    // It would make "100" of a "1", and swallow the return key.
    combo1_->setCompleter(nullptr);
    constexpr int Step = 20;
    constexpr int Last = 200;
    for (int value = Step; value <= Last; value += Step)
        combo1_->addItem(QString::number(value));
    combo1_->installEventFilter(this);
    combo1_->lineEdit()->installEventFilter(this);
}

bool Form8::eventFilter(QObject* watched, QEvent* event)
{
    const bool handled = QDialog::eventFilter(watched, event);
    if (event->type() == QEvent::KeyRelease) BoundText();
    return handled;
}

void Form8::BoundText()
{
    constexpr double Smallest = 1;
    constexpr double Largest = 200;
    if (Val(combo1_->currentText()) < Smallest) combo1_->setEditText("10");
    if (Val(combo1_->currentText()) > Largest) combo1_->setEditText("200");
}

}  // namespace pixano
