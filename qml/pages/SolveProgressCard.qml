// How the run is going: the wheel, the ten-step window that shows iterations passing, the status line and the
// four metric tiles.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    property var solvePage: null

    readonly property int _ringSize: 150
    readonly property int _ringStroke: 10
    readonly property int _windowBarHeight: 10
    readonly property int _titleIconSize: 16

    function windowFraction() {
        return solvePage.iterationWindowValue / Math.max(1, solvePage.iterationWindowSize)
    }

    function speedUnit() {
        return solvePage.iterationsPerSec > 0 ? qsTranslate("SolvePage", "it/s") : ""
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceLg

        RowLayout {
            spacing: card.theme.spaceSm

            Icon {
                name: "target"
                size: card._titleIconSize
                color: card.theme.textMuted
            }

            Text {
                text: qsTranslate("SolvePage", "Progress")
                color: card.theme.text
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.headingSm
                font.weight: card.type.weightSemibold
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: card.theme.spaceXl

            ProgressRing {
                objectName: "progressWheel"
                Layout.preferredWidth: card._ringSize
                Layout.preferredHeight: card._ringSize
                theme: card.theme
                value: card.solvePage.progressWheelValue
                strokeWidth: card._ringStroke
                indeterminate: card.solvePage.running && card.solvePage.currentIteration <= 0
            }

            ColumnLayout {
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignVCenter
                spacing: card.theme.spaceSm

                Text {
                    objectName: "statusLine"
                    Layout.fillWidth: true
                    text: card.solvePage._statusLine()
                    color: card.theme.text
                    font.family: card.theme.fontFamily
                    font.pixelSize: card.type.headingSm
                    font.weight: card.type.weightMedium
                    wrapMode: Text.Wrap
                }

                Text {
                    objectName: "statusDetail"
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: card.solvePage._statusDetail()
                    color: card.theme.warn
                    font.family: card.theme.fontFamily
                    font.pixelSize: card.type.bodySm
                    wrapMode: Text.Wrap
                }

                Rectangle {
                    objectName: "windowBar"
                    Layout.fillWidth: true
                    Layout.topMargin: card.theme.spaceSm
                    implicitHeight: card._windowBarHeight
                    radius: height / 2
                    color: card.theme.surface3

                    Rectangle {
                        objectName: "windowFill"
                        width: parent.width * card.windowFraction()
                        height: parent.height
                        radius: parent.radius
                        visible: width > 0
                        gradient: Gradient {
                            orientation: Gradient.Horizontal

                            GradientStop { position: 0.0; color: card.theme.accent }
                            GradientStop { position: 1.0; color: card.theme.accentMuted }
                        }

                        Behavior on width {
                            NumberAnimation { duration: card.theme.durationFast }
                        }
                    }
                }

                Text {
                    objectName: "windowCaption"
                    text: card.solvePage._windowCaption()
                    color: card.theme.textMuted
                    font.family: card.theme.fontMono
                    font.pixelSize: card.type.labelMd
                }
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: card.theme.spaceMd

            StatCard {
                objectName: "elapsedTile"
                Layout.fillWidth: true
                theme: card.theme
                compact: true
                label: qsTranslate("SolvePage", "Elapsed")
                value: card.solvePage.elapsedTime
            }

            StatCard {
                objectName: "remainingTile"
                Layout.fillWidth: true
                theme: card.theme
                compact: true
                label: qsTranslate("SolvePage", "Remaining")
                value: card.solvePage.estimatedRemaining
            }

            StatCard {
                objectName: "speedTile"
                Layout.fillWidth: true
                theme: card.theme
                compact: true
                label: qsTranslate("SolvePage", "Speed")
                value: card.solvePage._speedText()
                unit: card.speedUnit()
            }

            StatCard {
                objectName: "exploitabilityTile"
                Layout.fillWidth: true
                theme: card.theme
                compact: true
                label: qsTranslate("SolvePage", "Exploitability")
                value: card.solvePage._exploitabilityTileText()
                accentColor: card.theme.gold
            }
        }
    }
}
