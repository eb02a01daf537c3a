#include "tests/screen/sound_server.h"

#include <stdexcept>

namespace tests {

SoundServer::SoundServer() {
    const QString socket = path(QStringLiteral("socket"));
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* folder : {"HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QString::fromLatin1(folder), folder_.path());
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
    server_.setProcessEnvironment(environment);
    server_.setStandardErrorFile(path(QStringLiteral("log")));
    // It reads commands, so it ends when this process closes its input. Without rewinds the wire delivers
    // small pieces, like a microphone.
    server_.start(QStringLiteral("pulseaudio"),
                  {"-n", "-C", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--disable-shm",
                   "--high-priority=no", "--realtime=no", "--log-target=stderr", "-L",
                   "module-native-protocol-unix auth-anonymous=1 socket=" + socket, "-L",
                   "module-null-sink sink_name=wire norewinds=1"});
    qputenv("PULSE_SERVER", "unix:" + socket.toUtf8());
    qputenv("PULSE_COOKIE", path(QStringLiteral("cookie")).toUtf8());
    plug_in_microphone();
}

SoundServer::~SoundServer() {
    player_.kill();
    player_.waitForFinished();
    server_.kill();
    server_.waitForFinished();
}

/// The toolkit does not list a sink's monitor as a microphone, so a source of its own is put after the
/// monitor.
void SoundServer::plug_in_microphone() {
    command(QStringLiteral("load-module module-remap-source master=wire.monitor source_name=microphone"));
}

void SoundServer::unplug_microphone() { command(QStringLiteral("unload-module module-remap-source")); }

void SoundServer::play(const QString& file) {
    player_.start(QStringLiteral("paplay"), {"--device=wire", file});
}

/// Returns when the server has carried out the command.
void SoundServer::command(const QString& line) {
    constexpr int PATIENCE = 30000;
    server_.write(line.toUtf8() + "\nlist-clients\n");
    QByteArray said;
    while (!said.contains("client(s)")) {
        if (!server_.waitForReadyRead(PATIENCE)) throw std::runtime_error("the sound server does not answer");
        said += server_.readAllStandardOutput();
    }
}

}  // namespace tests
