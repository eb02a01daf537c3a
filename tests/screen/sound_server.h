#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace tests {

/// A sound server of the test's own, of which this process is a client: a wire that everything played goes
/// into, and a microphone at its other end. It ends with this object, or by itself with the process.
class SoundServer {
  public:
    /// Raises std::runtime_error when the server does not start.
    SoundServer();
    ~SoundServer();

    void plug_in_microphone();
    void unplug_microphone();

    /// Plays the WAV file into the wire, while the test goes on.
    void play(const QString& file);

    /// A file of the server's own folder.
    QString path(const QString& name) const { return folder_.filePath(name); }

  private:
    void command(const QString& line);

    QTemporaryDir folder_;
    QProcess server_;
    QProcess player_;
};

}  // namespace tests
