#pragma once

#include "controls/panel/FilterView.h"
#include "controls/panel/ParameterView.h"
#include "widgets/ReadoutField.h"
#include "widgets/ValueSlider.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

struct FakeParameterMaster : ParameterMaster {
    std::vector<std::string> log; // what was called, in order
    std::vector<CIValue> sent;
    std::map<std::string, CIValue> standard;
    CIImage picture; // what is open, and of every file but bad ones
    std::function<void(std::optional<CIPoint>)> pick;
    int openChanges = 0;

    void setFilterValueForKey(CIFilter& f, const CIValue& value, const std::string& key) override
    {
        f.setValueForKey(value, key);
        sent.push_back(value);
        log.push_back("set " + key);
    }
    void setActionNameForFilterKey(const CIFilter&, const std::string& key) override { log.push_back("name " + key); }
    void setDictValueForKey(
        const std::shared_ptr<CIDictionary>& d, const CIValue& value, const std::string& key) override
    {
        (*d)[key] = value;
        log.push_back("dict " + key);
    }
    CIImage backImage() override { return picture; }
    void pickPlace(std::function<void(std::optional<CIPoint>)> take) override { pick = std::move(take); }
    void updateView() override { log.push_back("update"); }
    void beginChange() override { ++openChanges, log.push_back("begin"); }
    void endChange() override { --openChanges, log.push_back("end"); }
    CIValue standardValueForKey(const CIFilter&, const std::string& key) override { return standard[key]; }
    void readImage(const QString& path, std::function<void(const CIImage&)> take) override
    {
        if (!path.contains("stopped"))
            take(path.contains("bad") ? CIImage() : picture);
    }
    void showReadFailure(const QString& path) override { log.push_back("failure " + path.toStdString()); }
    QStringList pictureNameFilters() override { return {"Pictures (*.png)"}; }
};

inline std::shared_ptr<CIFilter> filterNamed(const char* name)
{
    std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
    filter->setDefaults();
    return filter;
}

/// One row in a window.
class RowTest : public testing::Test {
protected:
    void SetUp() override
    {
        window.resize(320, 100);
        row.resize(288, 67);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    template <class T>
    T& part(const char* name)
    {
        T* found = row.findChild<T*>(QLatin1String(name));
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }
    void type(ReadoutField& field, const char* text, Qt::Key end = Qt::Key_Return)
    {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
        QTest::keyClick(&field, end);
    }

    FakeParameterMaster master;
    QWidget window;
    ParameterView& row = *new ParameterView(&window);
};
