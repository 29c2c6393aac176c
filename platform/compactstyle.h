// CompactStyle: the look of the handheld's small controls.
#ifndef PLATFORM_COMPACTSTYLE_H
#define PLATFORM_COMPACTSTYLE_H

#include <QProxyStyle>

// The toolkit's own Fusion style, whatever the desktop's theme is, so that the small buttons of the
// forms keep room for their texts. OK stands before Cancel in every row, without pictures.
class CompactStyle : public QProxyStyle {
    Q_OBJECT

public:
    CompactStyle();

    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
};

#endif
