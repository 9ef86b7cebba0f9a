#include "frmAbout.h"
#include "ui_frmAbout.h"

#include "viewer.h"

#include "ui/eventGuard.h"
#include "ui/messages.h"
#include "ui/setUpForm.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace about {

namespace {

constexpr int iconSize = 64;

// The first of these that is installed is started.
QList<Viewer> listSystemViewers()
{
    return {{u"kinfocenter"_s, {}},
            {u"hardinfo2"_s, {}},
            {u"hardinfo"_s, {}},
            {u"gnome-control-center"_s, {u"info-overview"_s}}};
}

} // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent), m_controls(std::make_unique<Ui::frmAbout>())
{
    ui::setUpForm(*m_controls, *this);
    ui::onEvent(m_controls->cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
    ui::onEvent(m_controls->cmdSysInfo, &QPushButton::clicked, this, &frmAbout::StartSysInfo);
    Form_Load();
}

frmAbout::~frmAbout() = default;

void frmAbout::Form_Load()
{
    setWindowTitle(u"About "_s + ui::applicationTitle);
    showIcon();
    m_controls->lblTitle->setText(ui::applicationTitle);
    m_controls->lblVersion->setText(QStringLiteral("Version " PENWRIGHT_VERSION));
    m_controls->lblDescription->setText(QStringLiteral(PENWRIGHT_DESCRIPTION));
    m_controls->lblDisclaimer->setText(QStringLiteral(PENWRIGHT_LEGAL_NOTICE));
    QFont titleFont = font();
    titleFont.setPointSizeF(1.75 * titleFont.pointSizeF());
    m_controls->lblTitle->setFont(titleFont);
}

void frmAbout::showIcon()
{
    m_controls->picIcon->setPixmap(QApplication::windowIcon().pixmap(QSize(iconSize, iconSize), devicePixelRatioF()));
}

// The program loads its icon shortly after its window appears, and this box may be open by then.
bool frmAbout::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationWindowIconChange)
        showIcon();
    return QDialog::event(event);
}

void frmAbout::StartSysInfo()
{
    if (!startFirstInstalled(listSystemViewers()))
        ui::showMessage(u"System Information Is Unavailable At This Time"_s);
}

} // namespace about
