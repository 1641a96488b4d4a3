// The pixel working file on disk and in memory, beside plain writing and reading of the same number
// of bytes. Works in the current folder.
#include "canvas/captures.h"
#include "effects/frame.h"
#include "files/text_store.h"
#include "files/value_text.h"
#include "measure.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <span>
#include <stdexcept>
#include <vector>

namespace pixano::bench {
namespace {

constexpr const char* WorkingFile = "pixano-bench.ser";
constexpr const char* PlainFile = "pixano-bench.plain";

const Surface& Picture()
{
    static const Surface picture = Photograph(4000, 3000);
    return picture;
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

OpenFile Open(const char* mode)
{
    OpenFile file(std::fopen(PlainFile, mode));
    if (!file) throw std::runtime_error(PlainFile);
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    return file;
}

/// Bytes that are written or read at once, as the working file does.
constexpr std::size_t BlockLength = 1 << 18;

/// Writes what the working file holds. It lies in memory, as the picture does that is captured: a
/// block that is written again and again would come from the processor's cache.
void WritePlain(std::span<const char> text)
{
    std::filesystem::remove(PlainFile);
    const OpenFile file = Open("wbx");
    while (!text.empty()) {
        const auto block = text.first(std::min(text.size(), BlockLength));
        if (std::fwrite(block.data(), 1, block.size(), file.get()) != block.size())
            throw std::runtime_error(PlainFile);
        text = text.subspan(block.size());
    }
}

void ReadPlain()
{
    static std::vector<char> block(BlockLength);
    const OpenFile file = Open("rb");
    while (std::fread(block.data(), 1, BlockLength, file.get()) == BlockLength)
        benchmark::DoNotOptimize(block.data());
}

/// The canvas with its working file in `store`.
struct Canvas {
    explicit Canvas(std::unique_ptr<PixelFile::Store> store) : w(std::move(store), progress)
    {
        PutOnCanvas(w, Picture());
    }
    ~Canvas()
    {
        w.ElabSer.Kill();
        std::filesystem::remove(PlainFile);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    void ReadBack()
    {
        for (int y = 0; y <= w.Alt; ++y)
            for (int x = w.Larg; x >= 0; --x)
                w.Picture1.PSet(x - 1, y, w.Input());
    }

    Progress progress;
    Work w;
};

std::vector<char> CapturedText()
{
    Canvas canvas(TextStore(WorkingFile));
    Cattura(canvas.w);
    std::ifstream file(WorkingFile, std::ios::binary);
    std::vector<char> text(std::filesystem::file_size(WorkingFile));
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    return text;
}

void CaptureToDisk(benchmark::State& state)
{
    const std::vector<char> text = CapturedText();
    Canvas canvas(TextStore(WorkingFile));
    Measure(
        state, "x_plain_write", [&] { canvas.w.ElabSer.Kill(); }, [&] { WritePlain(text); },
        [&] { Cattura(canvas.w); },
        // Both start with the same pages of memory free.
        [] { std::filesystem::remove(PlainFile); });
}

void ReadBackFromDisk(benchmark::State& state)
{
    Canvas canvas(TextStore(WorkingFile));
    Measure(
        state, "x_capture", [&] { canvas.w.ElabSer.Kill(); }, [&] { Cattura(canvas.w); },
        [&] {
            canvas.ReadBack();
            canvas.w.ElabSer.Close();
        });
}

void ReadBackBesidePlainRead(benchmark::State& state)
{
    WritePlain(CapturedText());
    Canvas canvas(TextStore(WorkingFile));
    Cattura(canvas.w);
    Measure(
        state, "x_plain_read", [] {}, ReadPlain,
        [&] {
            canvas.ReadBack();
            canvas.w.ElabSer.Close();
        });
}

template <typename Measured>
void BesideMemcpy(benchmark::State& state, Canvas& canvas, Measured measured)
{
    std::vector<std::uint32_t> copy(Picture().Row(0).size() * 3000);
    Measure(
        state, "x_memcpy", [&] { Cattura(canvas.w); },
        [&] {
            std::copy_n(Picture().Pixels(), copy.size(), copy.data());
            benchmark::ClobberMemory();
        },
        measured);
}

void CaptureInMemory(benchmark::State& state)
{
    Canvas canvas(MemoryStore());
    BesideMemcpy(state, canvas, [&] { Cattura(canvas.w); });
}

void ReadBackFromMemory(benchmark::State& state)
{
    Canvas canvas(MemoryStore());
    BesideMemcpy(state, canvas, [&] {
        canvas.ReadBack();
        canvas.w.ElabSer.Close();
    });
}

#define PIXANO_ROW(function, name)                                                                 \
    BENCHMARK(function)->Name(name)->UseManualTime()->Unit(benchmark::kMillisecond)

PIXANO_ROW(CaptureToDisk, "Disco/cattura");
PIXANO_ROW(ReadBackFromDisk, "Disco/rilettura");
PIXANO_ROW(ReadBackBesidePlainRead, "Disco/rilettura, accanto alla lettura");
PIXANO_ROW(CaptureInMemory, "Memoria/cattura");
PIXANO_ROW(ReadBackFromMemory, "Memoria/rilettura");

}  // namespace
}  // namespace pixano::bench

BENCHMARK_MAIN();
