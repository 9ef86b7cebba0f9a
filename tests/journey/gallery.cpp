// Takes a picture of every window, on the display and in the look of the environment. Not a test: scripts/gallery runs
// it for people to look at.
#include "everyWindow.h"

class Gallery : public EveryWindow {
    Q_OBJECT

private Q_SLOTS:
    void takeAll()
    {
        QVERIFY(begin());
        QVERIFY(play([this] { visitAll(); }));
    }

private:
    void look(const QString& window) override { takePicture(window, Area::Display); }
};

JOURNEY_MAIN(Gallery)
#include "gallery.moc"
