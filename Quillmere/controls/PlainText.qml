import QtQuick
import Quillmere.theme

// Text as everywhere in the application: the theme's colour and font, never interpreted as markup.
Text {
    color: Theme.primary
    font: Theme.body
    textFormat: Text.PlainText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
