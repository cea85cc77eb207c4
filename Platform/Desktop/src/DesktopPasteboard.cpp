#include <Desktop/DesktopPasteboard.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QStringDecoder>

namespace velmar {

bool DesktopPasteboard::setString(const std::string &text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    if (decoder.hasError()) {
        return false;
    }
    QGuiApplication::clipboard()->setText(decoded);
    return true;
}

} // namespace velmar
