#pragma once

class VKD_H_ZOBDoc;

// What the desktop hands a plug-in page: the project document of the model and, where a second
// project stands beside it (cross sections kept in a project of their own), that one too. The
// documents belong to the host.
class VKD_H_PluginParameter
{
public:
    explicit VKD_H_PluginParameter(VKD_H_ZOBDoc* zobDoc = nullptr, VKD_H_ZOBDoc* secondZobDoc = nullptr)
        : m_zobDoc(zobDoc), m_secondZobDoc(secondZobDoc)
    {
    }

    VKD_H_ZOBDoc* zobDoc() const { return m_zobDoc; }
    void setZobDoc(VKD_H_ZOBDoc* doc) { m_zobDoc = doc; }
    // Null when there is no second project.
    VKD_H_ZOBDoc* secondZobDoc() const { return m_secondZobDoc; }
    void setSecondZobDoc(VKD_H_ZOBDoc* doc) { m_secondZobDoc = doc; }

private:
    VKD_H_ZOBDoc* m_zobDoc;
    VKD_H_ZOBDoc* m_secondZobDoc;
};
