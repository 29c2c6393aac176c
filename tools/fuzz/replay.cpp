// The fuzz targets' main where there is no fuzzer: runs the inputs in the files and folders named.

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

bool runFile(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        QTextStream(stderr) << path << ": " << file.errorString() << '\n';
        return false;
    }
    const QByteArray input = file.readAll();
    // Named beforehand: an input that ends the program says nothing afterwards.
    QTextStream(stderr) << "running " << path << '\n';
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           static_cast<std::size_t>(input.size()));
    return true;
}

// Number of inputs run, -1 when something could not be read.
int runAll(const QString &path) {
    if (!QFileInfo(path).isDir())
        return runFile(path) ? 1 : -1;
    int done = 0;
    for (QDirIterator entries(path, QDir::Files, QDirIterator::Subdirectories);
         entries.hasNext();) {
        if (!runFile(entries.next()))
            return -1;
        ++done;
    }
    return done;
}

} // namespace

int main(int argc, char **argv) {
    int done = 0;
    for (int i = 1; i < argc; ++i) {
        const int more = runAll(QString::fromLocal8Bit(argv[i]));
        if (more <= 0) {
            QTextStream(stderr) << "nothing to run in " << argv[i] << '\n';
            return 2;
        }
        done += more;
    }
    QTextStream(stderr) << done << " inputs run\n";
    return done > 0 ? 0 : 2;
}
