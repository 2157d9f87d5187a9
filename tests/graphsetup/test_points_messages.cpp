// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "graph_messages.h"
#include "points_messages.h"
#include "string_table.h"

namespace quindar {
namespace {

// The texts stand as users of earlier versions know them, spelling included.
TEST(PointsMessages, TextsStandAsTheyAre) {
    const struct {
        int id;
        const char *text;
    } cases[] = {
        {kMsgNothingToGraph,
         "You must graph either a function or data points to continue.  currently you do not have "
         "any functions or data sets defined."},
        {kMsgEnterSetName, "You must enter a valid set name in the \"Set Name\" drop down box!"},
        {kMsgSetNotDefined,
         "The data set defined by the name \"%s\" has not been defined and therefore, the data set "
         "could not be deleted!"},
        {kMsgDeleteSet,
         "Do you really want to delete data set \"%s\", you will loose all of your data points?"},
        {kMsgNoSetsToDelete, "There are no data sets to delete!"},
        {kMsgNoPoints, "There have not been any data points defined for data set \"%s\"!"},
        {kMsgNoYOrZ,
         "There have been no \"Y\" or \"Z\" values for the data point coordinates defined for data "
         "set \"%s\"!"},
        {kMsgNoXOrZ,
         "There have been no \"X\" or \"Z\" values for the data point coordinates defined for data "
         "set \"%s\"!"},
        {kMsgNoXOrY,
         "There have been no \"X\" or \"Y\" values for the data point coordinates defined for data "
         "set \"%s\"!"},
        {kMsgXYCountsDiffer,
         "The quantity of \"X\" and \"Y\" coordinate values must be equal in data set \"%s\"! You "
         "have incomplete coordinates!"},
        {kMsgYZCountsDiffer,
         "The quantity of \"Y\" and \"Z\" coordinate values must be equal in data set \"%s\"! You "
         "have incomplete coordinates!"},
        {kMsgXZCountsDiffer,
         "The quantity of \"X\" and \"Z\" coordinate values must be wqual in data set \"%s\"! You "
         "have incomplete coordinates!"},
        {kMsgXYZCountsDiffer,
         "The quantity of \"X\", \"Y\" And \"Z\" coordinate values must be equal in cata set "
         "\"%s\"! You have incomplete coordinates!"},
        {kMsgIncompleteCoordinates,
         "Incomplete coordinate values have been detected in data set \"%s\"!"},
        {kMsgOneSurfaceSet,
         "You must have more than one data set to graph a 3-dimensional surface!"},
        {kMsgEqualZ,
         "The Z data point values for data sets \"%s\" and \"%s\" are equal. Each data set must "
         "have a unique set of X data point values for a 3-dimensional graph."},
        {kMsgDifferentX,
         "The X data point values for data sets \"%s\" and \"%s\" are not equal. Each data set "
         "must have a common set of Z data point values for a 3-dimensional graph."},
        {kMsgNotReal, "The data point coordinate values must be a real numbers!"},
        {kMsgNoDataSet,
         "There are currently no data sets defined, you must first define a data set!"},
        {kMsgNoInsertionPoint,
         "There is no insertion point selected, please welect the point where you wish to insert "
         "the new one!"},
        {kMsg2DInto3D,
         "Warning, You are adding 2D data points to a 3D graph, do you wish to continue?"},
        {kMsg3DInto2D,
         "Warning, You are adding 3D data points to a 2D graph, do you wish to Continue?"},
        {kMsgFunctionWith3DPoints,
         "You can not graph an equation and data points in 3-dimensions, you must remove the "
         "equation before you can add the data points!"},
        {kMsgNoDataInFile, "No data was found in the selected file!"},
        {kMsgNothingToSave, "There are current no data points to ve saved!"},
        {kMsgImaginaryInSet,
         "Imaginary coordinate values have been detected in data set \"%s\"!  The selected graph "
         "type does not support graphing of imaginary coordinate values!"},
        {kMsgZOfCurrentSetKept,
         "The data that you are loading contains Z coordinate values which are different from the "
         "current data set, the Z coordinate values for the current data set will be used!"},
        {kMsgZForcedToFirst,
         "The Z coordinate values for the data points you are loading are not the same, all Z "
         "values will be forced to the value of the first Z coordinate value in the file!"},
        {kMsgXAddedToOtherSets,
         "The new data set will add additional points not currently in the other data sets, "
         "matching X coordinate values will be added to each of the other data sets, you will have "
         "to fill in the Y coordinate values!"},
        {kMsgClearSet, "Do you really want to delete all of the data points for data set \"%s\"?"},
        {kMsgXNotIncreasing,
         "An invalid progression of X values has veen detected in data set \"%s\"!  Each "
         "successive value of X must be greater than the previous value in order to plot the data "
         "in a 3D graph. In other words, 3D graphs are not allowed to \"fold over\" on itself."},
        {kMsgPointsWith3DFunction,
         "You can not graph data points together with a 3D function. To graph data points, remove "
         "the function from the graph or create a new graph."},
        {kMsgSetNameUsed,
         "Data set %s has already been used, Please select another data set name."},
        {kMsgAddToCurrentSet,
         "Would you like to add the new data to the current data set? Choosing no will create a "
         "new data set."},
        {kMsgInconsistentZ,
         "Inconsistent Z data point values have been found in the new data, only a single Z data "
         "point value can be used, the first Z data value of %s will be used."},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(application_strings().Get(c.id), c.text) << c.id;
        // Graph building has texts of its own; no id may stand in both.
        EXPECT_TRUE(graph_message(c.id).empty()) << c.id;
    }
}

TEST(PointsMessages, NoIdIsDefinedTwice) {
    for (const std::string &problem : application_string_problems()) ADD_FAILURE() << problem;
}

TEST(PointsMessages, TheSaveFailureNamesFileAndReason) {
    EXPECT_EQ(application_strings().Get(kMsgPointFileNotSaved),
              "The data point file \"%s\" could not be saved: %s");
}

}  // namespace
}  // namespace quindar
