// SPDX-License-Identifier: MIT
/// Replaces what Fusion draws faintly: it derives outlines from the window's colour, which in a dark window
/// leaves them almost invisible. Everything else is Fusion's.
#include "qt/program_style.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "qt/contrast.h"
#include "qt/look.h"
#include "qt/style_painter.h"

namespace mero::qt {
namespace {

const QStyleOptionGroupBox* titled(const QStyleOptionComplex* option) {
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    return group != nullptr && !group->text.isEmpty() ? group : nullptr;
}

QFont titleFontOf(const QWidget* widget) {
    return titleFont(widget == nullptr ? QApplication::font() : widget->font());
}

int titlePadding(const QStyleOption& option) {
    return option.fontMetrics.height() / 4;
}

int stripHeight(const QStyleOptionComplex& option, const QWidget* widget) {
    return titled(&option) == nullptr ? 0
                                      : QFontMetrics(titleFontOf(widget)).height() + 2 * titlePadding(option);
}

void drawTitle(QPainter& painter, const QStyleOptionGroupBox& group, const QRect& place, const QStyle& style,
               const QWidget* widget) {
    painter.save();
    painter.setFont(titleFontOf(widget));
    const bool enabled = (group.state & QStyle::State_Enabled) != 0;
    painter.setPen(enabled ? titleColour(group.palette)
                           : group.palette.color(QPalette::Disabled, QPalette::WindowText));
    const bool underlined = style.styleHint(QStyle::SH_UnderlineShortcut, &group, widget) != 0;
    const auto mnemonic = underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    painter.drawText(place, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | mnemonic, group.text);
    painter.restore();
}

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    switch (element) {
        case PE_PanelLineEdit: {
            const auto* panel = qstyleoption_cast<const QStyleOptionFrame*>(option);
            if (panel == nullptr || panel->lineWidth > 0) {
                paintField(*painter, *option, option->palette.color(QPalette::Base));
                return;
            }
            break;
        }
        case PE_Frame:
            paintFrame(*painter, *option);
            return;
        case PE_PanelButtonCommand:
            paintButton(*painter, *option, widget != nullptr && isPrimary(*widget));
            return;
        case PE_IndicatorRadioButton:
            paintRadioMark(*painter, *option);
            return;
        case PE_IndicatorCheckBox:
            paintCheckMark(*painter, *option);
            return;
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    if (element == CE_TabBarTabShape) {
        paintTab(*painter, *option);
    } else if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
        paintHeading(*painter, *option);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    if (control == CC_GroupBox) {
        paintCard(*painter, *option, stripHeight(*option, widget));
        if (const auto* group = titled(option)) {
            drawTitle(*painter, *group, subControlRect(control, option, SC_GroupBoxLabel, widget), *this,
                      widget);
        }
    } else if (control == CC_ComboBox) {
        paintDropList(*painter, *option, subControlRect(control, option, SC_ComboBoxArrow, widget));
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect ProgramStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
    if (control != CC_GroupBox) {
        return QProxyStyle::subControlRect(control, option, part, widget);
    }
    const int strip = stripHeight(*option, widget);
    const QRect& whole = option->rect;
    switch (part) {
        case SC_GroupBoxLabel:
            return {whole.left() + 1 + pixelMetric(PM_LayoutLeftMargin, option, widget), whole.top(),
                    whole.width() - 2, strip};
        case SC_GroupBoxContents:
            return whole.adjusted(1, 1 + strip, -1, -1);
        default:
            return whole;
    }
}

QSize ProgramStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                     const QWidget* widget) const {
    if (type == CT_GroupBox) {
        const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        if (group != nullptr && widget != nullptr) {
            const int title = QFontMetrics(titleFontOf(widget)).horizontalAdvance(group->text) +
                              2 * pixelMetric(PM_LayoutLeftMargin, option, widget);
            return size.expandedTo({title, 0});
        }
    }
    QSize fitting = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_TabBarTab) {
        fitting += QSize(gap(*widget), gap(*widget) / 2);
    } else if (type == CT_LineEdit || type == CT_ComboBox) {
        fitting.rheight() = qMax(fitting.height(), option->fontMetrics.height() * 3 / 2);
    }
    return fitting;
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
    if (hint == SH_Table_GridLineColor && option != nullptr) {
        return static_cast<int>(dividerColour(option->palette).rgba());
    }
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0
                                                       : QProxyStyle::styleHint(hint, option, widget, data);
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_LayoutLeftMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutBottomMargin:
            return QFontMetrics(widget == nullptr ? QApplication::font() : widget->font()).height() * 2 / 3;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

void useProgramStyle() {
    auto* style = new ProgramStyle;
    style->setParent(qApp);
    QApplication::setStyle(style);
}

}  // namespace mero::qt
