#pragma once

// The style sheets of the lists, in the parts that they share: rows, then the focus rule of the
// node lists, then, after a line break or an empty line, the scroll bar.

namespace Test {

inline constexpr char RowRules[] =
        "QListWidget{\n"
        " border: none;\n"
        "}\n"
        "\n"
        "QListWidget::item:hover { background-color: rgb(227, 229, 229); }\n"
        "QListWidget::Item:selected { background-color: rgb(227, 229, 229); color: white; }\n";

inline constexpr char FocusRule[] = "QListWidget::focus{\n"
                                    "\toutline:0px;\n"
                                    "}\n";

inline constexpr char ScrollBarRules[] =
        "QScrollBar:vertical {\n"
        "    border: none;\n"
        "    background: #f2f2f2;\n"
        "    width: 8px;\n"
        "    margin: 8px 0 8px 0;\n"
        "}\n"
        "QScrollBar::handle:vertical {\n"
        "    background: qlineargradient(x1:0, y1:0, x2:1, y2:0,\n"
        "                                stop: 0 #bababa, stop: 1 #a0a0a0);\n"
        "    border-radius: 8px;\n"
        "    min-height: 20;\n"
        "}\n"
        "QScrollBar::add-line:vertical {\n"
        "    background: qlineargradient(x1:0, y1:0, x2:1, y2:0,\n"
        "                                stop: 0 #bababa, stop: 1 #a0a0a0);\n"
        "    height: 0px;\n"
        "    subcontrol-position: bottom;\n"
        "    subcontrol-origin: margin;\n"
        "}\n"
        "QScrollBar::sub-line:vertical {\n"
        "    background: qlineargradient(x1:0, y1:0, x2:1, y2:0,\n"
        "                                stop: 0 #bababa, stop: 1 #a0a0a0);\n"
        "    height: 0px;\n"
        "    subcontrol-position: top;\n"
        "    subcontrol-origin: margin;\n"
        "}\n"
        "QScrollBar::up-arrow:vertical {\n"
        "\n"
        "    width: 0px;\n"
        "    height: 0px;\n"
        "}\n"
        "QScrollBar::down-arrow:vertical {\n"
        "\t\n"
        "    width: 0px;\n"
        "    height: 0px;\n"
        "}";

} // namespace Test
