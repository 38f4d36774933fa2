#include "Quillmere/app/MenuBarPanel.h"

#include "Quillmere/app/PanelPlacement.h"
#include "Quillmere/menubar/MenuBarRootViewModel.h"

#include <QtCore/QtMath>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>

#include <utility>

namespace quillmere {

namespace {

/// A press on the tray item takes the focus, its release activates the item.
constexpr qint64 clickMilliseconds = 300;

bool canPlaceWindows() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

MenuBarPanel::MenuBarPanel(QQmlEngine& engine, const WindowModel::Application& application,
                           QObject* parent)
    : QObject(parent), engine_(engine), application_(application) {
    connect(this, &MenuBarPanel::contentSizeChanged, this, &MenuBarPanel::place);
}

MenuBarPanel::~MenuBarPanel() {
    if (window_ != nullptr) {
        window_->disconnect(this);
        delete window_;
    }
    delete closed_;
}

void MenuBarPanel::toggle(const QRect& iconGeometry) {
    const bool wasOpen =
        isOpen() || (sinceFocusLeft_.isValid() && sinceFocusLeft_.elapsed() < clickMilliseconds);
    sinceFocusLeft_.invalidate();
    if (wasOpen) {
        close();
    } else {
        openAt(iconGeometry);
    }
}

void MenuBarPanel::open(TransactionComposerMode mode, const QRect& iconGeometry) {
    openAt(iconGeometry);
    if (model_) {
        if (auto* root = qobject_cast<MenuBarRootViewModel*>(model_->scene())) {
            root->timeBank()->openComposer(mode);
        }
    }
}

void MenuBarPanel::close() {
    if (window_ != nullptr) {
        window_->close();
    }
}

void MenuBarPanel::openMainWindow() {
    close();
    emit mainWindowRequested();
}

void MenuBarPanel::openAt(const QRect& iconGeometry) {
    if (window_ == nullptr) {
        setAnchor(iconGeometry);
        window_ = make();
    }
    if (window_ != nullptr) {
        place();
        window_->show();
        window_->raise();
        window_->requestActivate();
    }
}

void MenuBarPanel::setAnchor(const QRect& iconGeometry) {
    anchor_ = iconGeometry.isEmpty() ? QRect(QCursor::pos(), QSize(1, 1)) : iconGeometry;
    const QScreen* screen = QGuiApplication::screenAt(anchor_.center());
    available_ = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    emit placeChanged();
}

QQuickWindow* MenuBarPanel::make() {
    model_ = std::make_unique<WindowModel>(application_, [this](StoreSession& session) {
        return std::make_unique<MenuBarRootViewModel>(session, application_.appState);
    });
    connect(model_.get(), &WindowModel::settingsRequested, this, &MenuBarPanel::settingsRequested);
    QQmlComponent component(
        &engine_, QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/app/MenuBarPanelWindow.qml")));
    auto* window = qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
        {{QStringLiteral("model"), QVariant::fromValue(model_.get())},
         {QStringLiteral("panel"), QVariant::fromValue(this)}}));
    if (window != nullptr) {
        connect(window, &QWindow::visibleChanged, this, &MenuBarPanel::onVisibleChanged);
        // Later: until then the focus may have come back, or another panel have been opened.
        const auto follow = [this, window] {
            if (window == window_) {
                onActiveChanged();
            }
        };
        connect(window, &QWindow::activeChanged, this, follow, Qt::QueuedConnection);
    }
    return window;
}

void MenuBarPanel::setContentSize(const QSizeF& size) {
    if (contentSize_ != size) {
        contentSize_ = size;
        emit contentSizeChanged();
    }
}

int MenuBarPanel::maximumHeight() const {
    return PanelPlacement::maximumHeight(available_);
}

bool MenuBarPanel::opensUpwards() const {
    return canPlaceWindows() && PanelPlacement::opensUpwards(anchor_, available_);
}

void MenuBarPanel::place() {
    if (window_ != nullptr) {
        const QSize size(qCeil(contentSize_.width()), qCeil(contentSize_.height()));
        window_->setGeometry(PanelPlacement::frame(size, anchor_, available_));
    }
}

void MenuBarPanel::onActiveChanged() {
    if (window_ != nullptr && !window_->isActive()) {
        sinceFocusLeft_.start();
        close();
    }
}

// The model goes after what is shown in it.
void MenuBarPanel::onVisibleChanged(bool isVisible) {
    if (!isVisible) {
        closed_ = std::exchange(window_, nullptr);
        connect(closed_, &QObject::destroyed, model_.release(), &QObject::deleteLater);
        closed_->deleteLater();
    }
}

} // namespace quillmere
