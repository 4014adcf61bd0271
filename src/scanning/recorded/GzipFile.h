#pragma once

#include <QIODevice>
#include <QString>

#include <zlib.h>

#include <memory>

namespace tessara {

/// Closes a zlib file whose last error no longer matters.
struct GzipCloser {
    void operator()(gzFile file) const { gzclose(file); }
};
using GzipHandle = std::unique_ptr<gzFile_s, GzipCloser>;

/// A file read from its beginning on, unpacked on the way if it is packed with gzip and as it is
/// if not. `read` gives 0 at the end and -1 after an error, for instance where packed bytes end
/// too early: what could be unpacked before is given first.
class GzipFile final : public QIODevice {
public:
    /// The name of standard input, for those who take a name from a command line.
    static constexpr QLatin1String kStandardInput{"-"};

    explicit GzipFile(QString path);

    /// Opens for reading. @return whether that went well; `errorString` tells why not
    bool openForReading();
    /// Goes back to the beginning, which standard input cannot.
    bool reset() override;
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    QString m_path;
    GzipHandle m_file;
};

/// What went wrong in the last operation on a zlib file, in words; empty if nothing did.
QString gzipError(gzFile file);

} // namespace tessara
