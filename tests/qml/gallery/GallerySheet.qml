// Every shared component in a few typical states, grouped in sections that are photographed one by one.
import QtQuick
import QtQuick.Layouts
import Kelvane

Rectangle {
    id: sheet

    property var theme: null
    readonly property var sectionNames: ["cards", "buttons", "chips", "stats", "icons", "playing", "board",
        "picker", "sidebar"]
    readonly property var iconNames: ["bolt", "calendar", "cards", "chart", "chips", "clipboard", "clock",
        "file-text", "folder-open", "gamepad", "gear", "home", "monitor", "palette", "save", "scroll", "sliders",
        "stop", "target", "tree", "trend-up"]

    color: theme ? theme.bg0 : "#080B12"

    Flow {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 16

        GallerySection {
            objectName: "cards"
            theme: sheet.theme

            Card {
                theme: sheet.theme
                width: 260

                ColumnLayout {
                    anchors.fill: parent
                    spacing: 8

                    SectionHeader {
                        Layout.fillWidth: true
                        theme: sheet.theme
                        title: "Project Setup"
                        subtitle: "Configure your game tree: board, ranges, and bet sizing."
                        badge: "Ready"
                        badgeColor: sheet.theme ? sheet.theme.success : "#3FB950"
                    }
                }
            }

            Card {
                theme: sheet.theme
                hoverable: true
                elevated: true
                accentColor: sheet.theme ? sheet.theme.gold : "#F0B429"

                Text {
                    text: "Elevated, gold accent"
                    color: sheet.theme ? sheet.theme.text : "#F0F6FC"
                }
            }

            SectionHeader {
                theme: sheet.theme
                title: "Solve"
                badge: "Running"
                badgeColor: sheet.theme ? sheet.theme.warn : "#F0883E"
            }
        }

        GallerySection {
            objectName: "buttons"
            theme: sheet.theme

            PrimaryButton { theme: sheet.theme; text: "Start Solve"; iconName: "bolt" }
            PrimaryButton { theme: sheet.theme; text: "Continue to Solve →" }
            PrimaryButton { theme: sheet.theme; text: "Solving"; loading: true }
            PrimaryButton { theme: sheet.theme; text: "Disabled"; enabled: false }
            SecondaryButton { theme: sheet.theme; text: "Open Project"; iconName: "folder-open" }
            SecondaryButton { theme: sheet.theme; text: "Clear"; danger: true; iconText: "✕" }
            SecondaryButton { theme: sheet.theme; text: "Disabled"; enabled: false }
            ToggleSwitch { theme: sheet.theme }
            ToggleSwitch { theme: sheet.theme; checked: true }
        }

        GallerySection {
            objectName: "chips"
            theme: sheet.theme

            Chip { theme: sheet.theme; text: "Pot 180" }
            Chip { theme: sheet.theme; text: "Flop: OOP 52 | IP 52"; clickable: true; iconText: "♠" }
            Chip { theme: sheet.theme; text: "QsJh2h"; removable: true }
            Chip {
                theme: sheet.theme
                text: "Running"
                tint: sheet.theme ? sheet.theme.withOpacity(sheet.theme.success, 0.15) : "#263FB950"
                stroke: sheet.theme ? sheet.theme.success : "#3FB950"
                textColor: sheet.theme ? sheet.theme.success : "#3FB950"
            }
        }

        GallerySection {
            objectName: "stats"
            theme: sheet.theme

            StatCard { theme: sheet.theme; label: "Speed"; value: "42.7"; unit: "it/s"; trend: "up" }
            StatCard { theme: sheet.theme; label: "Exploitability"; value: "0.2841"; unit: "%"; trend: "down" }
            StatCard { theme: sheet.theme; label: "EV (OOP)"; value: "51.204"; compact: true }
            StatCard {
                theme: sheet.theme
                label: "Elapsed"
                value: "12:04"
                compact: true
                accentColor: sheet.theme ? sheet.theme.info : "#58A6FF"
            }
            ProgressRing { theme: sheet.theme; value: 0.62 }
            ProgressRing { theme: sheet.theme; indeterminate: true }
            ProgressRing { theme: sheet.theme; value: 0.25; width: 56; height: 56; strokeWidth: 5 }
        }

        GallerySection {
            objectName: "icons"
            theme: sheet.theme

            Repeater {
                model: sheet.iconNames

                Icon {
                    required property string modelData

                    name: modelData
                    size: 22
                    color: sheet.theme ? sheet.theme.text : "#F0F6FC"
                }
            }
        }

        GallerySection {
            objectName: "playing"
            theme: sheet.theme

            PlayingCard { theme: sheet.theme; rank: "A"; suit: "s" }
            PlayingCard { theme: sheet.theme; rank: "K"; suit: "h"; selected: true }
            PlayingCard { theme: sheet.theme; rank: "T"; suit: "d" }
            PlayingCard { theme: sheet.theme; rank: "7"; suit: "c"; disabled: true }
            PlayingCard { theme: sheet.theme; faceDown: true }
            PlayingCard { theme: sheet.theme; rank: "Q" }
            PlayingCard { theme: sheet.theme; rank: "J"; suit: "h"; mini: true }
            PlayingCard { theme: sheet.theme; mini: true }
            PlayingCard { theme: sheet.theme; rank: "9"; suit: "s"; sizeScale: 1.5 }
        }

        GallerySection {
            objectName: "board"
            theme: sheet.theme

            BoardDisplay { theme: sheet.theme; boardText: "AhKsQd2c" }
            BoardDisplay { theme: sheet.theme; boardText: "______Ah"; editable: true; cardScale: 1.25 }
            BoardDisplay { theme: sheet.theme; boardText: "QsJh2h"; compact: true }
            BoardDisplay { theme: sheet.theme; boardText: "QsJh2h7c9d"; compact: true }
        }

        GallerySection {
            objectName: "picker"
            theme: sheet.theme

            CardPicker { theme: sheet.theme; usedCards: ["Ah", "KS", "qd", "2c"] }
            CardPicker { theme: sheet.theme; showSuitHeaders: false; usedCards: ["Ts"] }
        }

        GallerySection {
            objectName: "sidebar"
            theme: sheet.theme

            Sidebar { theme: sheet.theme; currentIndex: 2; height: 460 }
        }
    }
}
