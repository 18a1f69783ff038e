// SPDX-License-Identifier: MIT

#ifndef RECORDINGPAGE_H
#define RECORDINGPAGE_H

#include "rycusinterface.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>

class RyAbstatcManager;

/*
 * A page that records what the dialog does with it. The stand-ins of the library's two pages derive
 * from it.
 */
class RecordingPage : public RyCusInterface
{
public:
    // What happened to all pages since the last call, in order.
    static QStringList takeLog();

    // Called once with the next event of that text; null for nothing.
    static void callAt(const QString &event, const std::function<void()> &call);

    ~RecordingPage() override;

    QString name() const override;
    QWidget *createPage(QWidget *parent) override;
    void apply() override;
    void finish() override;
    void RestorDefaults() override;

protected:
    RecordingPage(const QString &title, RyAbstatcManager *manager);

private:
    Q_DISABLE_COPY(RecordingPage)

    void record(const QString &event) const;

    QString m_title;
    QPointer<QWidget> m_widget;
};

#endif // RECORDINGPAGE_H
