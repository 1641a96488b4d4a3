// The progress routine `Avanzamento` and its variables. Knows of its window only what it asks of
// it.
#pragma once

#include <string>

namespace pixano {

/// How far the running effect is; by itself it shows nothing.
class Progress {
  public:
    virtual ~Progress() = default;

    /// The effect begins to repaint the picture.
    virtual void Show() {}
    /// `n` rows of `alt` are done. Throws DivisionByZero when `alt` is 0.
    virtual void Avanzamento(double n, int alt);

    /// The bar's position, at most 400.
    int ValBarra() const { return valBarra_; }

  private:
    int valBarra_ = 0;
};

/// What the progress routine needs of the progress window.
class ProgressWindow {
  public:
    virtual ~ProgressWindow() = default;
    /// Shows the window, captioned "Elab. " and the name of the effect.
    virtual void Show() = 0;
    /// The bar's position, 0 to 400.
    virtual void SetBar(float value) = 0;
    virtual float Bar() const = 0;
    /// UTF-8.
    virtual void SetCaption(const std::string& caption) = 0;
    virtual std::string Caption() const = 0;
};

/// Progress told to the progress window.
class ShownProgress : public Progress {
  public:
    /// `window` outlives this object.
    explicit ShownProgress(ProgressWindow& window) : window_(window) {}

    void Show() override { window_.Show(); }
    void Avanzamento(double n, int alt) override;

    /// The progress window was unloaded: the next one's caption is taken afresh.
    void Unloaded() { titoloPreso_ = false; }
    /// The whole percentage shown last.
    int Percento() const { return percento_; }

  private:
    ProgressWindow& window_;
    int percento_ = 0;
    std::string titoloBase_;
    bool titoloPreso_ = false;
};

}  // namespace pixano
