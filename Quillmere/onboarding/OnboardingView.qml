import QtQuick
import QtQuick.Layouts
import Quillmere.theme
import Quillmere.controls
import Quillmere.onboarding

// The first-run screen: what Quillmere is, and the button that opens the time bank.
FocusScope {
    id: root

    required property OnboardingViewModel model

    readonly property int pagePadding: 28

    objectName: "onboarding.screen"
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Welcome to Quillmere")
    // The one thing to do here, and the keyboard shows it.
    Component.onCompleted: primaryAction.forceActiveFocus(Qt.TabFocusReason)

    ScrollArea {
        anchors.fill: parent
        padding: root.pagePadding

        Item {
            width: parent.width
            implicitHeight: Math.max(page.implicitHeight, root.height - 2 * root.pagePadding)

            ColumnLayout {
                id: page

                anchors.centerIn: parent
                width: parent.width
                spacing: 20

                Symbol {
                    Layout.alignment: Qt.AlignHCenter
                    name: "plus.forwardslash.minus"
                    size: 58
                    color: Theme.accentText
                }

                PlainText {
                    Layout.fillWidth: true
                    text: qsTr("Your flex time, made simple")
                    font: Theme.title
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                }

                PlainText {
                    Layout.alignment: Qt.AlignHCenter
                    Layout.fillWidth: true
                    Layout.maximumWidth: 400
                    text: qsTr("Quillmere is a manual time bank. Add time when you earn it, subtract time when you use it, and always see the balance you have now.")
                    color: Theme.secondary
                    horizontalAlignment: Text.AlignHCenter
                    lineHeight: 1.2
                    wrapMode: Text.Wrap
                }

                SoftCard {
                    Layout.alignment: Qt.AlignHCenter
                    Layout.fillWidth: true
                    Layout.maximumWidth: 430

                    contentItem: ColumnLayout {
                        spacing: 16

                        OnboardingFeature {
                            symbol: "number"
                            text: qsTr("Enter exact hours and minutes")
                        }

                        OnboardingFeature {
                            symbol: "bolt.fill"
                            text: qsTr("Use quick add and subtract actions")
                        }

                        OnboardingFeature {
                            symbol: "calendar"
                            text: qsTr("Review every change and calendar day")
                        }

                        OnboardingFeature {
                            symbol: "icloud"
                            text: qsTr("Sync privately through iCloud")
                        }
                    }
                }

                ProminentButton {
                    id: primaryAction

                    objectName: "onboarding.primaryAction"
                    Layout.alignment: Qt.AlignHCenter
                    Layout.fillWidth: true
                    Layout.maximumWidth: 380
                    text: qsTr("Open my time bank")
                    onClicked: root.model.complete()
                }
            }
        }
    }
}
