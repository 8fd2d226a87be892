#include "reports/ReportWriter.h"

#include "reports/LineForms.h"

void ReportWriter::blankLines(int count)
{
    for (int i = 0; i < count; ++i)
        write({});
}

void ReportWriter::dateLine() { write(DateLine(today())); }
void ReportWriter::heading(std::string_view text) { write(Heading(text)); }
void ReportWriter::rule() { write(Rule()); }

void ReportWriter::labelAndValue(std::string_view label, std::string_view value)
{
    write(LabelAndValue(label, value));
}

void ReportWriter::labelValueAndUnit(std::string_view label, std::string_view value, std::string_view unit)
{
    write(LabelValueAndUnit(label, value, unit));
}

void ReportWriter::valueAndUnit(std::string_view value, std::string_view unit)
{
    write(ValueAndUnit(value, unit));
}

void ReportWriter::column4Line(std::string_view value) { write(Column4Line(value)); }
void ReportWriter::column4DateLine() { column4Line(today()); }

void ReportWriter::emptyColumn4Lines(int count)
{
    for (int i = 0; i < count; ++i)
        column4Line({});
}
