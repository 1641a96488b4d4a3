// The windowed program beside what it cannot do without: plainly writing and reading its files, and
// bare decoding of a JPEG; or, for a picture, the memory that it takes. No screen is needed. Prints
// one line for each measurement. Usage: pixano-window-bench [COLUMNS ROWS | PICTURE]
#include "document/history.h"
#include "document/opening.h"
#include "document/places.h"
#include "document/showing.h"
#include "effects/catalogue.h"
#include "measure.h"
#include "pictures/picture_files.h"
#include "shell/application.h"
#include "shell/commands.h"
#include "shell/controls.h"
#include "shell/events.h"
#include "shell/run.h"
#include "shell/start_up.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>
#include <sys/resource.h>

namespace pixano::bench {
namespace {

constexpr int Turns = 3;

/// A user who is asked nothing.
class NoDialogs : public Dialogs {
  public:
    bool Ask(BoxIcon /*icon*/, const QString& /*title*/, const QString& /*text*/) override
    {
        return false;
    }
    void Tell(BoxIcon /*icon*/, const QString& /*title*/, const QString& text) override
    {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
    std::optional<QString> AskOpenName(const QString& /*folder*/) override { return std::nullopt; }
    std::optional<QString> AskSaveName(const QString& /*folder*/, const QString& /*name*/) override
    {
        return std::nullopt;
    }
};

void WritePlain(const QString& name, const QByteArray& bytes)
{
    QFile::remove(name);
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        file.write(bytes) != bytes.size())
        std::exit(1);
}

QByteArray ReadPlain(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) std::exit(1);
    return file.readAll();
}

/// Snapshot, pixel file and preview's copy; the last two are read back.
void PlainFiles(const QByteArray& bitmap, const QByteArray& text)
{
    WritePlain("plain.bml", bitmap);
    WritePlain("plain.ser", text);
    ReadPlain("plain.ser");
    WritePlain("plain.tmp", bitmap);
    ReadPlain("plain.tmp");
    QFile::remove("plain.ser");
}

void BareDecoding(const std::string& path)
{
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) std::exit(1);
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_stdio_src(&info, file);
    jpeg_read_header(&info, TRUE);
    jpeg_start_decompress(&info);
    std::vector<JSAMPLE> row(std::size_t{info.output_width} * info.output_components);
    JSAMPROW rows = row.data();
    while (info.output_scanline < info.output_height)
        jpeg_read_scanlines(&info, &rows, 1);
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    std::fclose(file);
}

/// Takes turns; prints how many times `compared` the `measured` takes, by the shortest of each
/// and by their medians.
template <typename Compared, typename Measured>
void Row(const char* name, Compared compared, Measured measured)
{
    Times own;
    Times other;
    for (int turn = 0; turn < Turns; ++turn) {
        other.Add(Timed(compared));
        own.Add(Timed(measured));
    }
    std::printf("%s: %.2f, median %.2f (%.0f ms)\n", name, own.Shortest() / other.Shortest(),
                own.Median() / other.Median(), own.Shortest() * 1e3);
}

/// The pixel file's text of a capture of the canvas.
QByteArray PixelText(Session& s)
{
    Capov(s.work);
    s.work.ElabSer.Close();
    const QByteArray text = ReadPlain(file::Pixels);
    s.work.ElabSer.Kill();
    return text;
}

void RunRows(Session& s, int width, int height)
{
    SavePicture(Photograph(width, height), "foto.jpg");
    Row(
        "open JPEG / bare decoding", [] { BareDecoding("foto.jpg"); },
        [&] {
            OpenNamed(s, QDir::current().filePath("foto.jpg"));
            s.doc.FileAperto.clear();
            QApplication::processEvents();
        });
    s.doc.Modificato = 0;
    OpenNamed(s, QDir::current().filePath("foto.jpg"));
    SaveBitmap(s.work.Picture1, "foto.bmp");
    const QByteArray bitmap = ReadPlain("foto.bmp");
    const QByteArray text = PixelText(s);
    Row(
        "click on \"Specchio\" / plain files", [&] { PlainFiles(bitmap, text); },
        [&] {
            Start(s, EffectOf(Specchio));
            QApplication::processEvents();
        });
}

/// What the process has taken at most, in canvases beyond 60 MB, after each step of some work.
void RunMemory(Session& s, const QString& picture)
{
    constexpr double Megabyte = 1e6;
    constexpr double Besides = 60 * Megabyte;
    const auto tell = [&](const char* step) {
        QApplication::processEvents();
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        const double canvas = 4.0 * s.work.Larg * s.work.Alt;
        const double peak = static_cast<double>(usage.ru_maxrss) * 1024;
        std::printf("peak after %s: %.0f MB, %.2f canvases + 60 MB\n", step, peak / Megabyte,
                    (peak - Besides) / canvas);
    };
    OpenNamed(s, picture);
    tell("opening");
    Start(s, EffectOf(Specchio));
    tell("\"Specchio\"");
    Start(s, EffectOf(Specchio));
    tell("\"Specchio\" again");
    Undo_Click(s);
    tell("\"Annulla\"");
    ChangeZoom(s, -0.2);
    tell("a smaller preview");
}

int Main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", folder.filePath("data").toUtf8());
    QApplication application(argc, argv);
    PrepareApplication(application);
    const QString picture = QDir::current().absoluteFilePath(argc == 2 ? argv[1] : "foto.jpg");
    QDir::setCurrent(folder.path());
    NoDialogs dialogs;
    Session session(dialogs, ProgramControls(), Timer(1));
    ConnectEvents(session);
    session.doc.CartellaAvvio = folder.path();
    if (argc == 2)
        RunMemory(session, picture);
    else
        RunRows(session, argc == 3 ? std::atoi(argv[1]) : 4000,
                argc == 3 ? std::atoi(argv[2]) : 3000);
    QDir::setCurrent("/");
    return 0;
}

}  // namespace
}  // namespace pixano::bench

int main(int argc, char* argv[])
{
    return pixano::bench::Main(argc, argv);
}
