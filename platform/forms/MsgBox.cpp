#include "platform/forms/MsgBox.h"

#include <QApplication>
#include <QMessageBox>

void MsgBox(const std::string& text, const std::string& title)
{
    QMessageBox box(QMessageBox::NoIcon,
                    title.empty() ? QCoreApplication::applicationName() : QString::fromStdString(title),
                    QString::fromStdString(text), QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
