#include "tools/sample_data/Words.h"

namespace tools
{

namespace
{

constexpr PersonName kChineseSurnames[] = {
    {L"王", L"wang"},     {L"李", L"li"},    {L"张", L"zhang"}, {L"刘", L"liu"},  {L"陈", L"chen"},
    {L"杨", L"yang"},     {L"赵", L"zhao"},  {L"黄", L"huang"}, {L"周", L"zhou"}, {L"吴", L"wu"},
    {L"徐", L"xu"},       {L"孙", L"sun"},   {L"胡", L"hu"},    {L"朱", L"zhu"},  {L"高", L"gao"},
    {L"欧阳", L"ouyang"}, {L"司马", L"sima"}};

constexpr GivenName kChineseGivenNames[] = {
    {{L"伟", L"wei"}, L"先生"},        {{L"芳", L"fang"}, L"女士"},       {{L"娜", L"na"}, L"女士"},
    {{L"秀英", L"xiuying"}, L"女士"},  {{L"敏", L"min"}, L"女士"},        {{L"静", L"jing"}, L"女士"},
    {{L"丽", L"li"}, L"女士"},         {{L"强", L"qiang"}, L"先生"},      {{L"磊", L"lei"}, L"先生"},
    {{L"洋", L"yang"}, L"先生"},       {{L"艳", L"yan"}, L"女士"},        {{L"建国", L"jianguo"}, L"先生"},
    {{L"晓明", L"xiaoming"}, L"先生"}, {{L"小红", L"xiaohong"}, L"女士"}, {{L"志远", L"zhiyuan"}, L"先生"},
    {{L"雨桐", L"yutong"}, L"女士"},   {{L"国庆", L"guoqing"}, L"先生"},  {{L"海燕", L"haiyan"}, L"女士"},
    {{L"思源", L"siyuan"}, L"先生"}};

constexpr Company kChineseCompanies[] = {
    {L"北京华信科技有限公司", L"huaxin.example"}, {L"上海东方贸易公司", L"dongfang.example"},
    {L"广州南海食品厂", L"nanhai.example"},       {L"深圳新星电子", L"xinxing.example"},
    {L"杭州西湖丝绸", L"xihu.example"},           {L"成都锦江酒店", L"jinjiang.example"},
    {L"武汉长江机械", L"changjiang.example"},     {L"西安古城印刷", L"gucheng.example"},
    {L"南京紫金软件", L"zijin.example"},          {L"天津港物流", L"tjport.example"},
    {L"重庆山城摩托", L"shancheng.example"},      {L"苏州园林设计院", L"yuanlin.example"},
    {L"大连海洋渔业", L"haiyang.example"},        {L"青岛崂山矿泉", L"laoshan.example"},
    {L"厦门鹭岛旅行社", L"ludao.example"},        {L"沈阳重型设备", L"shenyang-hi.example"},
    {L"哈尔滨冰城乳业", L"bingcheng.example"},    {L"昆明春城花卉", L"chuncheng.example"},
    {L"长沙岳麓书局", L"yuelu.example"},          {L"郑州中原纺织", L"zhongyuan.example"},
    {L"济南泉城医药", L"quancheng.example"},      {L"福州榕树茶叶", L"rongshu.example"},
    {L"合肥科大仪器", L"keda.example"},           {L"石家庄华北制药", L"huabei.example"},
    {L"太原晋阳煤业", L"jinyang.example"},        {L"南昌滕王阁文化", L"tengwang.example"},
    {L"贵阳黔酒集团", L"qianjiu.example"},        {L"兰州黄河农业", L"huanghe.example"},
    {L"海口椰风度假村", L"yefeng.example"},       {L"宁波北仑造船", L"beilun.example"}};

constexpr Place kChinesePlaces[] = {{L"中国", L"北京", L"北京", L"朝阳区建国路%号", L"100022", L"+86 10"},
                                    {L"中国", L"上海", L"上海", L"浦东新区世纪大道%号", L"200120", L"+86 21"},
                                    {L"中国", L"广东", L"广州", L"天河区体育西路%号", L"510620", L"+86 20"},
                                    {L"中国", L"广东", L"深圳", L"福田区深南大道%号", L"518026", L"+86 755"},
                                    {L"中国", L"浙江", L"杭州", L"西湖区文三路%号", L"310012", L"+86 571"},
                                    {L"中国", L"四川", L"成都", L"锦江区春熙路%号", L"610016", L"+86 28"},
                                    {L"中国", L"", L"武汉", L"武昌区中南路%号", L"430071", L"+86 27"}};

constexpr const wchar_t* kChineseJobTitles[] = {L"总经理",     L"采购经理", L"销售工程师", L"财务主管",
                                                L"办公室主任", L"",         L"秘书",       L"技术总监"};

constexpr const wchar_t* kChineseDepartments[] = {L"采购部", L"销售部", L"技术部", L"财务部", L"", L"行政部"};

constexpr const wchar_t* kChineseTaskSubjects[] = {
    L"寄送报价单", L"回电确认交货日期", L"准备年度合同", L"催收货款",     L"寄送样品",
    L"更新价格表", L"安排参观工厂",     L"处理客户投诉", L"核对客户信用", L"整理会议纪要"};

constexpr const wchar_t* kChineseEntrySubjects[] = {L"拜访客户", L"产品演示", L"合同谈判", L"商务午餐",
                                                    L"展览会",   L"现场培训", L"设备验收", L"电话会议"};

constexpr const wchar_t* kChineseRepeatedSubjects[] = {L"晨会",     L"销售例会", L"月度报告",
                                                       L"季度洽谈", L"半年盘点", L"生日问候"};

constexpr const wchar_t* kChineseCategories[] = {L"商务", L"电话", L"重要客户", L"内部"};

} // namespace

const Words& ChineseWords()
{
    static constexpr Words words{kChineseSurnames,     kChineseGivenNames,    kChineseCompanies,
                                 kChinesePlaces,       kChineseJobTitles,     kChineseDepartments,
                                 kChineseTaskSubjects, kChineseEntrySubjects, kChineseRepeatedSubjects,
                                 kChineseCategories};
    return words;
}

} // namespace tools
