#include "host/media/mediafiles.h"
#include "host/presets/presetstore.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <QTemporaryDir>
#include <QtTest>

class TestMediaFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesThatPresetsWriteAreMedia();
};

void TestMediaFiles::filesThatPresetsWriteAreMedia()
{
    QTemporaryDir folder;
    PresetStore store(*FormatsProxy::getInstance(), folder.path());
    QVERIFY(store.open(PresetStore::ReadOnly));
    QStringList unknown;
    const FormatListModel &formats = *store.formats().formatListModel();
    QVERIFY(formats.rowCount() > 0);
    for (int row = 0; row < formats.rowCount(); ++row) {
        const FormatDetailModel &presets = *formats.formatDetailModel(formats.getTitle(row));
        for (int preset = 0; preset < presets.rowCount(); ++preset) {
            FormatDetailModelData data;
            QVERIFY(presets.getModelInfoByIndex(preset, data));
            if (!mediaExtensions().contains(data.extension.toLower())) {
                unknown << data.extension;
            }
        }
    }
    QCOMPARE(unknown, QStringList());
}

QTEST_GUILESS_MAIN(TestMediaFiles)
#include "tst_mediafiles.moc"
