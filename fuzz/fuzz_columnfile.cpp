// A column configuration file of any bytes.
#include "ZrParseTableColsCfg.h"

#include <QtCore/QTemporaryFile>

namespace {
void drop(QtMsgType, const QMessageLogContext &, const QString &) {}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, size_t size)
{
    static const QtMessageHandler previous =
        qInstallMessageHandler(drop); // a warning per file is the rule here
    Q_UNUSED(previous)
    QTemporaryFile file;
    if (!file.open())
        return 0;
    file.write(reinterpret_cast<const char *>(data), qint64(size));
    file.close();
    const ZrGridSetting grid = ZrParseTableColsCfg::parseGridConfigure(file.fileName());
    int last = std::numeric_limits<int>::min();
    for (const ZrFieldSetting &field : grid.getFieldSetList()) {
        if (field.index < last)
            qt_assert("sorted by index", __FILE__, __LINE__);
        last = field.index;
    }
    return 0;
}
