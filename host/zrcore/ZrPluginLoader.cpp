#include "ZrPluginLoader.h"

#include "ZrCorePlugin.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPluginLoader>
#include <QtCore/QRegularExpression>

#include <clocale>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace {
constexpr int maxDetail = 500; // a mangled name may be as long as its author likes

/// The system's loader speaks the user's language; what it says is read here, so it speaks English for a
/// while.
class PlainSpeech
{
public:
    PlainSpeech()
        : m_plain(newlocale(LC_MESSAGES_MASK, "C", duplocale(uselocale(nullptr))))
        , m_before(uselocale(m_plain))
    {
    }
    ~PlainSpeech()
    {
        uselocale(m_before);
        freelocale(m_plain);
    }

private:
    Q_DISABLE_COPY(PlainSpeech)
    const locale_t m_plain;
    const locale_t m_before;
};

QString readable(const QString &symbol)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(symbol.toLatin1().constData(), nullptr, nullptr, &status), &std::free);
    return name ? QString::fromLatin1(name.get()) : symbol;
}

void tellLoadError(const QString &errorText, ZrPluginFile *file)
{
    static const QRegularExpression symbol(QStringLiteral("undefined symbol: ([^\\s,)]+)"));
    static const QRegularExpression library(QStringLiteral("([^\\s:(]+): cannot open shared object file"));
    const QRegularExpressionMatch missingSymbol = symbol.match(errorText);
    const QRegularExpressionMatch missingLibrary = library.match(errorText);
    if (missingSymbol.hasMatch()) {
        file->reason = ZrPluginReason::MissingSymbol;
        file->detail = readable(missingSymbol.captured(1)).left(maxDetail);
    } else if (missingLibrary.hasMatch()) {
        file->reason = ZrPluginReason::MissingLibrary;
        file->detail = missingLibrary.captured(1).left(maxDetail);
    } else {
        file->reason = ZrPluginReason::LoadFailed;
        file->detail = errorText.simplified().left(maxDetail);
    }
}
} // namespace

ZrCorePlugin *ZrPluginLoader::load(ZrPluginFile *file)
{
    const ZrPluginFile now = ZrPluginFile::read(file->path);
    if (now.sha256.isEmpty() || now.sha256 != file->sha256) {
        file->reason = ZrPluginReason::Damaged;
        file->detail = QStringLiteral("it has changed since it was read");
        return nullptr;
    }
    file->reason = ZrPluginReason::None;
    file->detail.clear();
    const PlainSpeech speech;
    QPluginLoader loader(file->path);
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    QObject *const root = loader.instance();
    ZrCorePlugin *const plugin = qobject_cast<ZrCorePlugin *>(root);
    if (!root) {
        tellLoadError(loader.errorString(), file);
    } else if (!plugin) {
        file->reason = ZrPluginReason::WrongInterface;
        file->detail = QStringLiteral("its root object does not have the interface that its meta data name");
    }
    return plugin;
}
