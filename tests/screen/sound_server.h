#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace tests {

/// A sound server of the test's own, of which this process is a client: everything that is played goes into a
/// wire with a microphone at its other end. The server ends with this object or with the process.
class SoundServer {
  public:
    /// Raises std::runtime_error when the server does not start.
    SoundServer();
    ~SoundServer();

    void plug_in_microphone();
    void unplug_microphone();

    /// Starts to play the WAV file into the wire.
    void play(const QString& file);

    /// A path in the server's own folder.
    QString path(const QString& name) const { return folder_.filePath(name); }

  private:
    void command(const QString& line);

    QTemporaryDir folder_;
    QProcess server_;
    QProcess player_;
};

}  // namespace tests
