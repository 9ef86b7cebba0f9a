// Takes a picture of every window, on the display and in the look of the environment, and measures how well its texts
// stand out there. Not a test: scripts/gallery runs it for people to look at.
#include "contrast.h"
#include "everyWindow.h"

class Gallery : public EveryWindow {
    Q_OBJECT

private Q_SLOTS:
    void takeAll()
    {
        QVERIFY(begin());
        QVERIFY(play([this] { visitAll(); }));
        QVERIFY2(m_areTextsClear, "faint texts are named above");
    }

private:
    void look(const QString& window) override
    {
        const QImage picture = takePicture(window, Area::Display);
        const auto measure = [&] {
            const QWidget* dialog = QApplication::activeModalWidget();
            const QStringList faint = faintTexts(dialog ? *dialog : *m_window, picture);
            m_areTextsClear = m_areTextsClear && faint.isEmpty();
            for (const QString& text : faint)
                qWarning("%s", qPrintable(window + u' ' + text));
            return true;
        };
        waitFor("the texts", measure);
    }

    bool m_areTextsClear = true;
};

JOURNEY_MAIN(Gallery)
#include "gallery.moc"
