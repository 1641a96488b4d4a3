#include "canvas/pixel_file.h"

#include "canvas/fault.h"

#include <algorithm>
#include <utility>

namespace pixano {

void PixelFile::OpenForOutput()
{
    Forget();
    window_ = store_->Create();
    next_ = window_.first;
    mode_ = Mode::Output;
    made_ = true;
}

void PixelFile::Write(std::span<const std::uint32_t> pixels)
{
    while (!pixels.empty()) {
        if (next_ == window_.last) Flush();
        const auto room = static_cast<std::size_t>(window_.last - next_);
        const auto now = pixels.first(std::min(pixels.size(), room));
        next_ = std::ranges::transform(now, next_, Surface::ColourOf).out;
        pixels = pixels.subspan(now.size());
    }
}

void PixelFile::Close()
{
    const Mode mode = std::exchange(mode_, Mode::Closed);
    Colour* const end = std::exchange(next_, nullptr);
    window_ = {};
    if (mode == Mode::Output) store_->Finish(end);
    if (mode == Mode::Input) store_->Close();
}

void PixelFile::Forget()
{
    if (std::exchange(mode_, Mode::Closed) != Mode::Closed) store_->Close();
    window_ = {};
    next_ = nullptr;
    made_ = false;
}

void PixelFile::Kill()
{
    const bool made = made_;
    Forget();
    if (made) store_->Kill();
}

void PixelFile::Flush()
{
    if (mode_ != Mode::Output) throw Fault(FaultKind::InvalidCall);
    window_ = store_->Append(next_);
    next_ = window_.first;
}

void PixelFile::Refill()
{
    if (mode_ == Mode::Output) throw Fault(FaultKind::InvalidCall);
    if (mode_ == Mode::Closed) {
        store_->Open();
        mode_ = Mode::Input;
    }
    window_ = store_->Next();
    next_ = window_.first;
}

}  // namespace pixano
